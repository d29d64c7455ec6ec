#include "stats/log_factorial.h"

#include <gtest/gtest.h>

#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

TEST(LogFactorialTable, FirstEntriesAreZero) {
  const LogFactorialTable table(5);
  EXPECT_EQ(table.Size(), 5);
  EXPECT_EQ(table(0), 0.0);
  EXPECT_EQ(table(1), 0.0);
  EXPECT_NEAR(table(5), std::log(120.0), 1e-14);
}

TEST(LogFactorialTable, AgreesWithLogGammaUpToTheLargestSize) {
  const LogFactorialTable table(LogFactorialTable::kMaxSize);
  for (int i : {2, 3, 10, 57, 170, 1000, 12345, 32767}) {
    const double expected = std::lgamma(i + 1.0);
    EXPECT_NEAR(table(i), expected, 1e-12 * expected) << i;
  }
}

TEST(LogFactorialTable, TableOfZeroHoldsOneCell) {
  const LogFactorialTable table(0);
  EXPECT_EQ(table.Size(), 0);
  EXPECT_EQ(table(0), 0.0);
  EXPECT_THROW((void)table(1), StatsError);
}

TEST(LogFactorialTable, RebuildChangesTheSize) {
  LogFactorialTable table(100);
  table.BuildLogFactorial(1);
  EXPECT_EQ(table.Size(), 1);
  EXPECT_THROW((void)table(2), StatsError);
  table.BuildLogFactorial(20);
  EXPECT_NEAR(table(20), std::lgamma(21.0), 1e-12);
}

TEST(LogFactorialTable, SizesOutsideSixteenBitsAreRefused) {
  LogFactorialTable table(3);
  try {
    table.BuildLogFactorial(LogFactorialTable::kMaxSize + 1);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Overflow");
  }
  EXPECT_THROW(table.BuildLogFactorial(-1), StatsError);
  EXPECT_THROW((void)table(-1), StatsError);
}

}  // namespace
}  // namespace ovelt

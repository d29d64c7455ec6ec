// The quick cells of the pair table give the very text of the general masks.

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "analyses/linkage/table_cells.h"
#include "output/format_mask.h"

namespace ovelt {
namespace {

TEST(TableCells, ThreeDecimalsAsTheMask) {
  std::mt19937 rng(5);
  std::uniform_real_distribution<double> wide(-3.0, 3.0);
  std::uniform_int_distribution<int> thousandths(-3000, 3000);
  for (int i = 0; i < 200000; ++i) {
    const double x = wide(rng);
    ASSERT_EQ(ThreeDecimals(x), Format(x, "0.000")) << x;
    // Values on and next to a rounding half, where binary and decimal rounding part ways.
    const double half = (thousandths(rng) + 0.5) / 1000.0;
    for (const double y : {half, std::nextafter(half, 10.0), std::nextafter(half, -10.0)}) {
      ASSERT_EQ(ThreeDecimals(y), Format(y, "0.000")) << y;
      const auto f = static_cast<float>(y);
      ASSERT_EQ(ThreeDecimals(f), Format(f, "0.000")) << f;
    }
    const auto p = static_cast<float>(std::fabs(x) / 3.0);
    ASSERT_EQ(ThreeDecimals(p), Format(p, "0.000")) << p;
  }
  for (const double y : {0.0, -0.0, -0.0004, 0.0015, 2.0005, 1234567.891, 1e12, -1e-300})
    EXPECT_EQ(ThreeDecimals(y), Format(y, "0.000")) << y;
  EXPECT_EQ(ThreeDecimals(-0.0004), "-0.000");
  EXPECT_EQ(ThreeDecimals(0.0015), "0.002");
}

TEST(TableCells, RightAlignedFiveAsTheMask) {
  for (const int32_t v : {0, 7, 12345, 123456, -3, 99999, 100000})
    EXPECT_EQ(RightAlignedFive(v), Format(v, "@@@@@")) << v;
}

TEST(TableCells, AppendedCellsAreTheCells) {
  std::mt19937 rng(9);
  std::uniform_real_distribution<double> wide(-3.0, 3.0);
  for (int i = 0; i < 100000; ++i) {
    const double x = i % 1000 == 0 ? -0.0 : wide(rng);
    std::string line = "x";
    AppendThreeDecimals(line, x);
    ASSERT_EQ(line, "x" + ThreeDecimals(x)) << x;
    std::string blank;
    AppendThreeDecimals(blank, x, true);
    const std::string text = ThreeDecimals(x);
    ASSERT_EQ(blank, text.front() == '-' ? text : " " + text) << x;
    const auto f = static_cast<float>(std::fabs(x) / 3.0);
    std::string single;
    AppendThreeDecimals(single, f);
    ASSERT_EQ(single, ThreeDecimals(f)) << f;
  }
  for (const double y : {-0.0004, 1e12, -1e-300, 2.0005}) {
    std::string line;
    AppendThreeDecimals(line, y, true);
    const std::string text = ThreeDecimals(y);
    EXPECT_EQ(line, text.front() == '-' ? text : " " + text) << y;
  }
  for (const int32_t v : {0, 7, 12345, 123456, -3, 99999, 100000}) {
    std::string line;
    AppendRightAlignedFive(line, v);
    EXPECT_EQ(line, RightAlignedFive(v)) << v;
  }
}

}  // namespace
}  // namespace ovelt

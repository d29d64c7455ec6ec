#include "stats/raggedness.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace ovelt {
namespace {

TEST(RaggednessFromHistogram, HandWorked) {
  // Ten pairs, shares 0.1, 0.2, 0.3, 0, 0.4: steps 0.1, 0.1, -0.3, 0.4 and the last share 0.4:
  // 0.01 + 0.01 + 0.09 + 0.16 + 0.16 = 0.43.
  const std::vector<int64_t> counts{1, 2, 3, 0, 4};
  EXPECT_NEAR(RaggednessFromHistogram(counts, 10), 0.43, 1e-12);
  const std::vector<int32_t> narrow{1, 2, 3, 0, 4};
  EXPECT_EQ(RaggednessFromHistogram(narrow, 10), RaggednessFromHistogram(counts, 10));
}

TEST(RaggednessFromHistogram, NoIdenticalPair) {
  // Shares 0, 0.5, 0.5: 0.25 + 0 + 0.25.
  EXPECT_NEAR(RaggednessFromHistogram(std::vector<int64_t>{0, 3, 3}, 6), 0.5, 1e-12);
}

TEST(RaggednessFromHistogram, EmptyClassesAfterTheLastChangeNothing) {
  const std::vector<int64_t> tight{1, 2, 3, 0, 4};
  const std::vector<int64_t> padded{1, 2, 3, 0, 4, 0, 0};
  EXPECT_EQ(RaggednessFromHistogram(padded, 10), RaggednessFromHistogram(tight, 10));
}

TEST(RaggednessFromHistogram, AllPairsIdenticalGivesOne) {
  // x(0) = 1 and d = 0: no step, then x(0)^2.
  EXPECT_DOUBLE_EQ(RaggednessFromHistogram(std::vector<int64_t>{6}, 6), 1.0);
}

TEST(RaggednessFromHistogram, NoPairGivesZero) {
  EXPECT_EQ(RaggednessFromHistogram(std::vector<int64_t>{}, 0), 0.0);
  EXPECT_EQ(RaggednessFromHistogram(std::vector<int32_t>{0}, 0), 0.0);
}

}  // namespace
}  // namespace ovelt

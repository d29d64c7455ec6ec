#include "stats/r2_statistic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace ovelt {
namespace {

TEST(R2Statistic, HandWorked) {
  // U = 2, 0, 1 and k / 2 = 1: deviations 1, -1, 0; mean square 2/3; S = 3.
  EXPECT_NEAR(R2Statistic({0, 2, 0, 1}, 2.0, 3), std::sqrt(2.0 / 3.0) / 3.0, 1e-12);
}

TEST(R2Statistic, NoSegregatingSiteGivesZero) {
  EXPECT_EQ(R2Statistic({0, 0, 0}, 0.0, 0), 0.0);
}

TEST(R2Statistic, NoSequenceGivesZero) {
  EXPECT_EQ(R2Statistic({0}, 1.0, 2), 0.0);
}

}  // namespace
}  // namespace ovelt

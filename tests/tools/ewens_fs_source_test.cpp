#include "tools/ewens_fs_source.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tools/distribution_check.h"

namespace ovelt {
namespace {

// n = 3, theta = 1: the unsigned Stirling numbers |s(3, k)| are 2, 3, 1 and the rising
// factorial 1 * 2 * 3 = 6, so P[K = 1, 2, 3] = 2/6, 3/6, 1/6.
TEST(FsEwensTail, SmallSampleMatchesStirlingNumbersByHand) {
  const EwensTail tail = FsEwensTail(3, 2, 1.0);
  EXPECT_NEAR(tail.PEqual, 0.5, 1e-12);
  EXPECT_NEAR(tail.StrobeckS, 5.0 / 6.0, 1e-12);
  // S' = P[K >= 2] = 4/6, so Fs = ln((2/3) / (1/3)) = ln 2.
  EXPECT_NEAR(tail.Fs.value(), std::log(2.0), 1e-12);
}

// One haplotype in the whole sample: no sample has fewer, Fs has no value.
TEST(FsEwensTail, OneHaplotypeGivesTheOutOfRangeMark) {
  const EwensTail tail = FsEwensTail(4, 1, 2.0);
  // P[K = 1] = (n - 1)! theta / rising factorial = 6 * 2 / (2 * 3 * 4 * 5) = 0.1.
  EXPECT_NEAR(tail.PEqual, 0.1, 1e-12);
  EXPECT_NEAR(tail.StrobeckS, 0.1, 1e-12);
  EXPECT_FALSE(tail.Fs);
}

// The largest sample the tab accepts still gives probabilities.
TEST(FsEwensTail, LargestAcceptedSampleGivesAProbability) {
  const EwensTail tail = FsEwensTail(kEwensSampleLimit, 20, 5.0);
  EXPECT_GT(tail.PEqual, 0.0);
  EXPECT_LT(tail.PEqual, 1.0);
  EXPECT_GE(tail.StrobeckS, tail.PEqual);
}

}  // namespace
}  // namespace ovelt

#include "stats/fay_wu_h.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(FayWuH, FiveSequencesByHand) {
  // n = 5, S(1) = 5, S(4) = 1: ThetaH = 2 (5 * 1 + 1 * 16) / 20 = 2.1,
  // ThetaPi = 2 (5 * 1 * 4 + 1 * 4 * 1) / 20 = 2.4, H = 0.3.
  const FayWuResult r = FayWuH({0, 5, 0, 0, 1, 0}, 5);
  EXPECT_NEAR(r.ThetaH, 2.1, 1e-15);
  EXPECT_NEAR(r.ThetaPi, 2.4, 1e-15);
  EXPECT_NEAR(r.H, 0.3, 1e-15);
}

TEST(FayWuH, ThetaPiIsTheMeanPairwiseDifferenceOfBiallelicSites) {
  // A site with i derived copies among n differs in i (n - i) of the n (n - 1) / 2 pairs.
  const int n = 7;
  const std::vector<int32_t> spectrum = {0, 3, 2, 0, 1, 4, 2, 0};
  double k = 0.0;
  for (int i = 1; i < n; ++i)
    k += spectrum[static_cast<size_t>(i)] * i * (n - i) / (n * (n - 1) / 2.0);
  EXPECT_NEAR(FayWuH(spectrum, n).ThetaPi, k, 1e-13);
}

TEST(FayWuH, HighFrequencyDerivedVariantsMakeHNegative) {
  EXPECT_LT(FayWuH({0, 0, 0, 0, 0, 0, 0, 0, 0, 6, 0}, 10).H, 0.0);
  // i (n - i) against i^2: 21 against 9 at i = 3 of 10, equal at i = 5.
  EXPECT_GT(FayWuH({0, 0, 0, 6, 0, 0, 0, 0, 0, 0, 0}, 10).H, 0.0);
  EXPECT_EQ(FayWuH({0, 0, 0, 0, 0, 6, 0, 0, 0, 0, 0}, 10).H, 0.0);
}

TEST(FayWuH, FixedDifferencesAndEmptySpectraCountNothing) {
  // S(n): the outgroup differs from every sequence, a fixed difference, not a polymorphism.
  const FayWuResult fixed = FayWuH({0, 0, 0, 0, 9}, 4);
  EXPECT_EQ(fixed.ThetaH, 0.0);
  EXPECT_EQ(fixed.ThetaPi, 0.0);
  EXPECT_EQ(fixed.H, 0.0);
  EXPECT_EQ(FayWuH({}, 5).H, 0.0);
  EXPECT_EQ(FayWuH({0, 1}, 1).H, 0.0);
}

}  // namespace
}  // namespace ovelt

#include "stats/tajima_d.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

TEST(TajimaCoefficients, FourSequencesByHand) {
  // n = 4: a1 = 1 + 1/2 + 1/3 = 11/6, a2 = 1 + 1/4 + 1/9 = 49/36, b1 = 5/9,
  // b2 = 2 (16 + 4 + 3) / (9 * 4 * 3) = 23/54, c1 = 5/9 - 6/11 = 1/99,
  // c2 = 23/54 - 6 / (4 * 11/6) + (49/36) / (121/36) = 23/54 - 9/11 + 49/121 = 83/6534,
  // e1 = c1 / a1 = 2/363, e2 = c2 / (a1^2 + a2) = (83/6534) / (85/18) = 83/30855.
  const TajimaCoefficients c = TajimaCoefficientsFor(4);
  EXPECT_NEAR(c.a1, 11.0 / 6.0, 1e-15);
  EXPECT_NEAR(c.a2, 49.0 / 36.0, 1e-15);
  EXPECT_NEAR(c.b1, 5.0 / 9.0, 1e-15);
  EXPECT_NEAR(c.b2, 23.0 / 54.0, 1e-15);
  EXPECT_NEAR(c.c1, 1.0 / 99.0, 1e-15);
  EXPECT_NEAR(c.c2, 83.0 / 6534.0, 1e-15);
  EXPECT_NEAR(c.e1, 2.0 / 363.0, 1e-15);
  EXPECT_NEAR(c.e2, 83.0 / 30855.0, 1e-15);
}

TEST(TajimaCoefficients, FiveSequencesByHand) {
  // n = 5: a1 = 25/12, a2 = 205/144, b1 = 1/2, b2 = 66/180 = 11/30, c1 = 1/2 - 12/25 = 1/50,
  // c2 = 11/30 - 7 / (5 * 25/12) + (205/144) / (625/144) = 11/30 - 84/125 + 205/625 = 17/750,
  // e1 = 6/625, e2 = (17/750) / (830/144) = 2448/622500.
  const TajimaCoefficients c = TajimaCoefficientsFor(5);
  EXPECT_NEAR(c.c1, 1.0 / 50.0, 1e-15);
  EXPECT_NEAR(c.c2, 17.0 / 750.0, 1e-15);
  EXPECT_NEAR(c.e1, 6.0 / 625.0, 1e-15);
  EXPECT_NEAR(c.e2, 2448.0 / 622500.0, 1e-15);
}

TEST(TajimaD, ZeroWhenBothEstimatorsAgree) {
  // k = S / a1 makes the numerator vanish, whatever n.
  for (const int n : {4, 10, 57, 300}) {
    const TajimaCoefficients c = TajimaCoefficientsFor(n);
    const double s = 13.0;
    EXPECT_NEAR(TajimaD(s / c.a1, s, c.a1, c.e1, c.e2), 0.0, 1e-14) << n;
  }
}

TEST(TajimaD, FiveSequencesSixSites) {
  // n = 5, S = 6, k = 2.9: D = (2.9 - 6 * 12/25) / sqrt(6 e1 + 30 e2)
  //   = 0.02 / sqrt(0.0576 + 30 * 2448/622500) = 0.02 / sqrt(0.17557590...) = 0.0477307.
  const TajimaCoefficients c = TajimaCoefficientsFor(5);
  const double expected = 0.02 / std::sqrt(0.0576 + 30.0 * 2448.0 / 622500.0);
  EXPECT_NEAR(TajimaD(2.9, 6.0, c.a1, c.e1, c.e2), expected, 1e-13);
  EXPECT_NEAR(expected, 0.0477307, 1e-7);
  EXPECT_NEAR(TajimaDFromCounts(5, 2.9, 6.0), expected, 1e-13);
}

TEST(TajimaD, NoSegregatingSitesIsNotDetermined) {
  const TajimaCoefficients c = TajimaCoefficientsFor(6);
  EXPECT_TRUE(std::isnan(TajimaD(0.0, 0.0, c.a1, c.e1, c.e2)));
  EXPECT_TRUE(std::isnan(TajimaDFromCounts(6, 0.0, 0.0)));
}

TEST(TajimaD, SignFollowsTheExcessOfRareOrCommonVariants) {
  // Many singletons: k below S / a1, D negative; intermediate frequencies: D positive.
  const TajimaCoefficients c = TajimaCoefficientsFor(10);
  EXPECT_LT(TajimaD(10 * 0.2, 10, c.a1, c.e1, c.e2), 0.0);     // ten singletons: k = 10 * 2/10
  EXPECT_GT(TajimaD(10 * 0.5556, 10, c.a1, c.e1, c.e2), 0.0);  // ten 5/5 splits: k = 10 * 5/9
}

TEST(HarmonicA2, SumOfInverseSquares) {
  EXPECT_EQ(HarmonicA2Double(1), 0.0);
  EXPECT_NEAR(HarmonicA2Double(4), 49.0 / 36.0, 1e-15);
  // The sum tends to pi^2 / 6.
  EXPECT_NEAR(HarmonicA2Double(1000000), M_PI * M_PI / 6.0, 1.1e-6);
}

}  // namespace
}  // namespace ovelt

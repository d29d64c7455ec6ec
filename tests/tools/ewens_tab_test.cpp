#include "tools/ewens_tab.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ewens_source.h"
#include "tools/expected_haplotypes.h"

namespace ovelt {
namespace {

using testing::EwensByStirling;
using testing::StirlingTail;

TEST(ExpectedHaplotypes, SmallSamplesByHand) {
  EXPECT_DOUBLE_EQ(ExpectedHaplotypes(1, 3.0), 1.0);
  EXPECT_DOUBLE_EQ(ExpectedHaplotypes(2, 3.0), 1.0 + 3.0 / 4.0);
  EXPECT_DOUBLE_EQ(ExpectedHaplotypes(3, 1.0), 1.0 + 1.0 / 2 + 1.0 / 3);
  EXPECT_EQ(ExpectedHaplotypes(0, 1.0), 0.0);
}

TEST(ExpectedHaplotypes, IsTheMeanOfTheEwensDistribution) {
  for (const double theta : {0.3, 1.7, 12.0}) {
    const std::vector<double> p = EwensByStirling(9, theta);
    double mean = 0, total = 0;
    for (int j = 1; j <= 9; ++j) {
      mean += j * p[j];
      total += p[j];
    }
    EXPECT_NEAR(total, 1.0, 1e-12);
    EXPECT_NEAR(ExpectedHaplotypes(9, theta), mean, 1e-12) << theta;
  }
}

TEST(ExpectedHaplotypes, GrowsLikeThetaLogN) {
  // For large n, E[K] = theta (ln(n / theta) + ... ); with theta = 1 it is the harmonic number
  // H_n = ln n + 0.5772156649 + 1 / (2n) - 1 / (12 n^2).
  const double n = 500;
  EXPECT_NEAR(ExpectedHaplotypes(500, 1.0),
              std::log(n) + 0.5772156649015329 + 1 / (2 * n) - 1 / (12 * n * n), 1e-10);
}

TEST(EwensTab, AHandWorkedSample) {
  // n = 3, theta = 1: |s(3, j)| = 2, 3, 1 over 1 2 3 = 6, so P(K = 1, 2, 3) = 1/3, 1/2, 1/6.
  // h = 2: P[K = 2] = 1/2, S = P[K <= 2] = 5/6, S' = P[K >= 2] = 2/3, Fs = ln(2) and
  // E[K] = 1 + 1/2 + 1/3.
  const EwensResult r = ComputeEwens({3, 2, 1.0}, StirlingTail);
  EXPECT_NEAR(r.PEqual, 0.5, 1e-15);
  EXPECT_NEAR(r.StrobeckS, 5.0 / 6, 1e-15);
  EXPECT_NEAR(r.Fs.value(), std::log(2.0), 1e-12);
  EXPECT_NEAR(r.Expected, 11.0 / 6, 1e-15);
}

TEST(EwensTab, TheSourceIsAskedForTheTypedValues) {
  int32_t asked_n = 0, asked_h = 0;
  double asked_theta = 0;
  const EwensTailSource source = [&](int32_t n, int32_t h, double theta) {
    asked_n = n;
    asked_h = h;
    asked_theta = theta;
    return EwensTail{0.25, 0.75, std::nullopt};
  };
  const EwensResult r = ComputeEwens({40, 7, 2.5}, source);
  EXPECT_EQ(asked_n, 40);
  EXPECT_EQ(asked_h, 7);
  EXPECT_EQ(asked_theta, 2.5);
  EXPECT_EQ(r.PEqual, 0.25);
  EXPECT_EQ(r.StrobeckS, 0.75);
  EXPECT_FALSE(r.Fs);
  EXPECT_DOUBLE_EQ(r.Expected, ExpectedHaplotypes(40, 2.5));
}

}  // namespace
}  // namespace ovelt

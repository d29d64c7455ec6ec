#include "analyses/polymorphism/size_changes/mismatch_expected.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/size_changes/size_change_segregating.h"

namespace ovelt {
namespace {

// The geometric distribution written the plain way.
double Geometric(double theta, int i) { return std::pow(theta, i) / std::pow(theta + 1.0, i + 1); }

TEST(ConstantSizeMismatch, IsTheGeometricDistribution) {
  for (const double theta : {0.5, 1.8, 7.0}) {
    for (int i = 0; i < 12; ++i)
      EXPECT_NEAR(ConstantSizeMismatch(theta, i), Geometric(theta, i), 1e-15);
  }
  EXPECT_DOUBLE_EQ(ConstantSizeMismatch(1.0, 0), 0.5);
  EXPECT_DOUBLE_EQ(ConstantSizeMismatch(1.0, 2), 0.125);
}

TEST(ConstantSizeMismatch, SumsToOneWithMeanTheta) {
  for (const double theta : {0.3, 2.5, 12.0}) {
    double sum = 0.0, mean = 0.0;
    for (int i = 0; i < 3000; ++i) {
      sum += ConstantSizeMismatch(theta, i);
      mean += i * ConstantSizeMismatch(theta, i);
    }
    EXPECT_NEAR(sum, 1.0, 1e-12);
    EXPECT_NEAR(mean, theta, 1e-9);
  }
}

TEST(ConstantSizeMismatch, ThetaZeroIsThePointMassAtZero) {
  EXPECT_EQ(ConstantSizeMismatch(0.0, 0), 1.0);
  EXPECT_EQ(ConstantSizeMismatch(0.0, 3), 0.0);
}

TEST(SizeChangeMismatch, NoChangeIsTheConstantCurve) {
  for (int i = 0; i < 10; ++i)
    EXPECT_NEAR(SizeChangeMismatch(3.0, 3.0, 4.0, i), static_cast<float>(Geometric(3.0, i)), 1e-7);
}

TEST(SizeChangeMismatch, SumsToOneAndItsMeanIsS2) {
  // The mean of the expected distribution is theta1 + (theta0 - theta1) exp(-tau / theta1),
  // which is S2 at t = tau / theta1 N generations: a second route to the same number.
  const double theta0 = 2.0, theta1 = 50.0, tau = 6.0;
  double sum = 0.0, mean = 0.0;
  for (int i = 0; i < 2000; ++i) {
    const double f = SizeChangeMismatch(theta0, theta1, tau, i);
    sum += f;
    mean += i * f;
  }
  EXPECT_NEAR(sum, 1.0, 1e-5);
  EXPECT_NEAR(mean, theta1 + (theta0 - theta1) * std::exp(-tau / theta1), 2e-3);
  EXPECT_NEAR(mean, ExpectedSegregatingSites(2, theta0, theta1, tau / theta1), 2e-3);
}

TEST(SizeChangeMismatch, LargeThetaFinalIsPoissonAfterTheGeometric) {
  // With theta1 very large the recent lineages do not coalesce: the differences are a Poisson
  // number of mean tau added to the geometric of theta0 (Rogers and Harpending 1992).
  const double theta0 = 1.5, tau = 5.0;
  for (int i = 0; i < 15; ++i) {
    double convolution = 0.0;
    for (int j = 0; j <= i; ++j)
      convolution += std::exp(-tau) * std::pow(tau, j) / std::tgamma(j + 1.0) *
                     Geometric(theta0, i - j);
    EXPECT_NEAR(SizeChangeMismatch(theta0, 1e6, tau, i), convolution, 1e-5) << i;
  }
}

TEST(SizeChangeMismatch, TauOrThetaInitialOfZeroComputeWithTheSmallestRate) {
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(SizeChangeMismatch(2.0, 1000.0, 0.0, i), SizeChangeMismatch(2.0, 1000.0, 1e-07, i));
    EXPECT_EQ(SizeChangeMismatch(0.0, 1000.0, 3.0, i), SizeChangeMismatch(1e-07, 1000.0, 3.0, i));
  }
  // No time since the change: the sample still shows theta0.
  EXPECT_NEAR(SizeChangeMismatch(2.0, 1000.0, 0.0, 1), Geometric(2.0, 1), 1e-6);
  EXPECT_TRUE(std::isfinite(SizeChangeMismatch(0.0, 1000.0, 0.0, 0)));
}

TEST(SizeChangeMismatch, IsRoundedTo32Bits) {
  const float f = SizeChangeMismatch(1.0, 20.0, 3.0, 4);
  EXPECT_EQ(static_cast<double>(f), static_cast<double>(static_cast<float>(f)));
}

TEST(SizeChangeMismatch, LongAgoChangeFromLargeTauStaysFinite) {
  // tau^j / j! alone overflows past j of about 170 when tau is 1000; the decay factor is kept
  // inside each term so that the value is the constant curve of theta1.
  EXPECT_NEAR(SizeChangeMismatch(1.0, 5.0, 1000.0, 400), Geometric(5.0, 400), 1e-7);
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/size_changes/size_change_moments.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/size_changes/size_change_k_variance.h"

namespace ovelt {
namespace {

TEST(SizeChangeMoments, TauFromTheExcessOfTheVariance) {
  // VarK - k = 4: tau = 2, theta initial = 3 - 2 = 1.
  const MomentEstimates e = EstimateByMoments(3.0, 7.0);
  EXPECT_DOUBLE_EQ(e.Tau, 2.0);
  EXPECT_DOUBLE_EQ(e.ThetaInitial, 1.0);
  EXPECT_DOUBLE_EQ(e.ThetaFinal, 1000.0);
}

TEST(SizeChangeMoments, NegativeThetaInitialBecomesZero) {
  // VarK - k = 9: tau = 3 > k = 2.
  const MomentEstimates e = EstimateByMoments(2.0, 11.0);
  EXPECT_DOUBLE_EQ(e.Tau, 3.0);
  EXPECT_EQ(e.ThetaInitial, 0.0);
}

TEST(SizeChangeMoments, VarianceBelowKGivesTauZero) {
  const MomentEstimates e = EstimateByMoments(1.8, 5.6 / 9.0);
  EXPECT_EQ(e.Tau, 0.0);
  EXPECT_DOUBLE_EQ(e.ThetaInitial, 1.8);
}

TEST(SizeChangeMoments, TwoSequences) {
  // n = 2: one pair, VarK = 0, so tau = 0 and theta initial = k.
  const MomentEstimates e = EstimateByMoments(3.0, 0.0);
  EXPECT_EQ(e.Tau, 0.0);
  EXPECT_EQ(e.ThetaInitial, 3.0);
}

TEST(ExpectedVariancesOfK, HandWorkedValue) {
  // n = 5, k = 1.8: (3*5*6*1.8 + 2*33*3.24) / (275 - 35 + 6) = 375.84 / 246.
  const ExpectedKVariances v = ExpectedVariancesOfK(5, 1.8);
  EXPECT_NEAR(v.NoRecombination.Total, 375.84 / 246.0, 1e-12);
  EXPECT_NEAR(v.FreeRecombination.Total, 6.0 * 1.8 / 12.0, 1e-12);
  EXPECT_NEAR(v.FreeRecombination.Stochastic, 0.6, 1e-12);
  EXPECT_NEAR(v.FreeRecombination.Sampling, 3.6 / 12.0, 1e-12);
  EXPECT_NEAR(v.NoRecombination.TotalCV, std::sqrt(375.84 / 246.0) / 1.8, 1e-12);
}

TEST(ExpectedVariancesOfK, TotalIsStochasticPlusSampling) {
  for (const int n : {2, 3, 10, 250}) {
    for (const double k : {0.5, 4.0, 31.0}) {
      const ExpectedKVariances v = ExpectedVariancesOfK(n, k);
      EXPECT_NEAR(v.NoRecombination.Total,
                  v.NoRecombination.Stochastic + v.NoRecombination.Sampling, 1e-12 * k * k);
      EXPECT_NEAR(v.FreeRecombination.Total,
                  v.FreeRecombination.Stochastic + v.FreeRecombination.Sampling, 1e-12 * k);
    }
  }
}

TEST(ExpectedVariancesOfK, ZeroKGivesZeros) {
  const ExpectedKVariances v = ExpectedVariancesOfK(6, 0.0);
  EXPECT_EQ(v.NoRecombination.Total, 0.0);
  EXPECT_EQ(v.NoRecombination.TotalCV, 0.0);
  EXPECT_EQ(v.FreeRecombination.SamplingCV, 0.0);
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/diversity/theta_variances.h"

#include <gtest/gtest.h>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

PolyStats HandStats() {
  PolyStats s;  // the five sequences of poly_fixture.h
  s.NetSites = 8;
  s.SegSites = 5;
  s.Mutations = 6;
  s.AvgDiffs = 2.5;
  s.PiValue = 2.5 / 8;
  return s;
}

TEST(ThetaVariances, HandWorkedFiveSequences) {
  const ThetaVariances v = ComputeThetaVariances(5, HandStats());
  // a1 = 25/12, a2 = 205/144.
  EXPECT_NEAR(v.ThetaWSequence, 2.4, 1e-12);  // 5 / (25/12)
  EXPECT_NEAR(v.ThetaW, 0.3, 1e-12);
  EXPECT_NEAR(v.ThetaEta, 0.36, 1e-12);       // 6 * 0.3 / 5
  // Vn = (5 * 625 + 205 * 25) / 144 / (625 * 830 / 20736) = 1188000 / 518750.
  EXPECT_NEAR(v.VnSequence, 1188000.0 / 518750.0, 1e-12);
  EXPECT_NEAR(v.VfSequence, 720.0 / 625.0, 1e-12);
  EXPECT_NEAR(v.VarThetaNoRec, 1188000.0 / 518750.0 / 64, 1e-12);
  EXPECT_NEAR(v.VarThetaFreeRec, 720.0 / 625.0 / 64, 1e-12);
  // k' = 8 * 0.3125 = 2.5; 11 n^2 - 7 n + 6 = 246.
  EXPECT_NEAR(v.K, 2.5, 1e-12);
  EXPECT_NEAR(v.StochasticNoRec, (62 * 2.5 + 40 * 6.25) / 246, 1e-12);  // 405 / 246
  EXPECT_NEAR(v.SamplingNoRec, (28 * 2.5 + 26 * 6.25) / 246, 1e-12);    // 232.5 / 246
  EXPECT_NEAR(v.TotalNoRec, (90 * 2.5 + 66 * 6.25) / 246, 1e-12);       // 637.5 / 246
  EXPECT_NEAR(v.StochasticFreeRec, 2.5 / 3, 1e-12);
  EXPECT_NEAR(v.SamplingFreeRec, 5.0 / 12, 1e-12);
  EXPECT_NEAR(v.TotalFreeRec, 15.0 / 12, 1e-12);
  // Finite sites: X = (625 - 205) / 288, FS = 100/36 - 5 X / 6.25, FEta = 100/36 - 7 X / 6.25.
  const double x = 420.0 / 288.0;
  const double fs = 100.0 / 36.0 - 5 * x / 6.25, feta = 100.0 / 36.0 - 7 * x / 6.25;
  EXPECT_NEAR(v.FiniteFromPi, 0.3125 / (1 - 4 * 0.3125 / 3), 1e-12);  // 0.535714
  EXPECT_NEAR(v.FiniteFromS, 0.625 / (25.0 / 12 - 5 * fs / 8), 1e-12);  // 0.580645
  EXPECT_NEAR(v.FiniteFromEta, 0.75 / (25.0 / 12 - 6 * feta / 8), 1e-12);  // 0.612245
  EXPECT_NEAR(v.FiniteFromS, 0.580645, 1e-6);
  EXPECT_NEAR(v.FiniteFromEta, 0.612245, 1e-6);
}

TEST(ThetaVariances, StochasticAndSamplingAddUpToTheTotal) {
  for (int n = 2; n < 40; n += 3) {
    PolyStats s;
    s.NetSites = 500;
    s.SegSites = 3 * n;
    s.Mutations = static_cast<float>(3 * n + 2);
    s.PiValue = 0.004 + n * 1e-4;
    s.AvgDiffs = s.PiValue * s.NetSites;  // k = k' up to rounding
    const ThetaVariances v = ComputeThetaVariances(n, s);
    EXPECT_NEAR(v.StochasticNoRec + v.SamplingNoRec, v.TotalNoRec, 1e-9) << n;
    EXPECT_NEAR(v.StochasticFreeRec + v.SamplingFreeRec, v.TotalFreeRec, 1e-9) << n;
  }
}

TEST(ThetaVariances, NoSegregatingSiteGivesZeros) {
  PolyStats s;
  s.NetSites = 100;
  const ThetaVariances v = ComputeThetaVariances(6, s);
  EXPECT_EQ(v.ThetaEta, 0.0);
  EXPECT_EQ(v.ThetaW, 0.0);
  EXPECT_EQ(v.VarThetaNoRec, 0.0);
  EXPECT_EQ(v.FiniteFromPi, 0.0);
  EXPECT_EQ(v.FiniteFromS, 0.0);
  EXPECT_EQ(v.FiniteFromEta, 0.0);
  EXPECT_EQ(v.K, 0.0);
  EXPECT_EQ(v.TotalNoRec, 0.0);
  EXPECT_EQ(v.VnSequence, 0.0);
}

TEST(ThetaVariances, PiOfThreeQuartersIsADivisionByZero) {
  PolyStats s;  // two sequences differing at 3 of 4 sites
  s.NetSites = 4;
  s.SegSites = 3;
  s.Mutations = 3;
  s.AvgDiffs = 3;
  s.PiValue = 0.75;
  try {
    (void)ComputeThetaVariances(2, s);
    FAIL() << "no division by zero";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Division by zero");
  }
}

}  // namespace
}  // namespace ovelt

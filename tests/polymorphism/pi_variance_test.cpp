#include "analyses/polymorphism/common/pi_variance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analyses/polymorphism/diversity/pi_jukes_cantor.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "core/random_alignment.h"
#include "poly_fixture.h"

namespace ovelt {
namespace {

// The sampling variance exactly as its definition reads: the n x n matrix of 32-bit floats and
// the triple loop of step 4.
double PlainVariance(const Selection& ad, int32_t from, int32_t to, int32_t l) {
  const int32_t n = ad.SelOutCount;
  std::vector<std::vector<float>> d(static_cast<size_t>(n) + 1,
                                    std::vector<float>(static_cast<size_t>(n) + 1, 0.0f));
  double sum = 0.0;
  for (int32_t i = 1; i <= n; ++i)
    for (int32_t j = i + 1; j <= n; ++j) {
      d[i][j] = d[j][i] = static_cast<float>(test::PlainDifferences(ad, i, j, from, to));
      sum += d[i][j];
    }
  const double nd = n;
  const double dbar = sum / (nd * (nd - 1) / 2);
  const double a = dbar * dbar * (nd - 1) * (nd - 1) / (4.0 * l * l * nd * nd);
  double b = 0.0;
  for (int32_t i = 1; i <= n; ++i)
    for (int32_t j = 1; j <= n; ++j) {
      if (j == i) continue;
      for (int32_t m = j; m <= n; ++m) {
        if (m == i) continue;
        float t = d[i][j] * d[i][m];
        if (j != m) t *= 2;
        b += t;
      }
    }
  const auto l2 = static_cast<float>(static_cast<double>(l) * l);
  b = b / l2 / (nd * nd * nd) * (nd - 2);
  double c = 0.0;
  for (int32_t i = 1; i <= n; ++i)
    for (int32_t j = i + 1; j <= n; ++j) c += d[i][j] * d[i][j];
  c = c / l2 / (nd * nd);
  return ((6 - 4 * nd) * a + b + c) * 4 / (nd * (nd - 1));
}

TEST(SamplingVarianceOfPi, HandWorkedAlignment) {
  const auto ad = test::Selected(test::HandRows());
  const PiSamplingVariance v = SamplingVarianceOfPi(PairwiseDifferences(ad, 1, 9), 8);
  // n = 5, L = 8, D = 25, Dbar = 2.5.
  // A = 6.25 * 16 / (4 * 64 * 25) = 0.015625.
  // Row sums 11, 10, 9, 10, 10: B = (121 + 100 + 81 + 100 + 100) / 64 / 125 * 3 = 0.18825.
  // C = (5 * 4 + 5 * 9) / 64 / 25 = 0.040625.
  // V = (-14 * 0.015625 + 0.18825 + 0.040625) * 4 / 20 = 0.002025, SD = 0.045.
  EXPECT_NEAR(v.Variance, 0.002025, 1e-15);
  EXPECT_NEAR(v.StdDev, 0.045, 1e-13);
}

TEST(SamplingVarianceOfPi, TwoSequencesGiveAFiniteValue) {
  // One difference over 4 sites: D = Dbar = 1; A = 1 / (4 * 16 * 4) = 1/256; B = 0 (n - 2);
  // C = 1 / 16 / 4 = 1/64. V = (-2/256 + 4/256) * 4 / 2 = 1/64.
  const auto ad = test::Selected({"ACGT", "ACGA"});
  const PiSamplingVariance v = SamplingVarianceOfPi(PairwiseDifferences(ad, 1, 4), 4);
  EXPECT_TRUE(std::isfinite(v.Variance));
  EXPECT_NEAR(v.Variance, 1.0 / 64, 1e-15);
}

TEST(SamplingVarianceOfPi, AgreesWithTheTripleLoopOnRandomAlignments) {
  std::mt19937 rng(17);
  for (int round = 0; round < 20; ++round) {
    const int n = 2 + round % 14;
    const int sites = 30 + 11 * round;
    const auto ad = test::Selected(test::RandomRows(rng, n, sites, "ACGT-"));
    const int32_t l = ComputePolyStats(ad, 1, sites).NetSites;
    if (l == 0) continue;
    const double expected = PlainVariance(ad, 1, sites, l);
    const double got = SamplingVarianceOfPi(PairwiseDifferences(ad, 1, sites), l).Variance;
    EXPECT_NEAR(got, expected, 1e-12 * std::max(1.0, std::fabs(expected))) << "round " << round;
  }
}

TEST(SamplingVarianceOfPi, LongDivergentSequencesRoundTheProductsAsSingles) {
  // Distances above 4096 make products that a 32-bit float rounds; both routes must agree.
  std::mt19937 rng(23);
  const auto ad = test::Selected(test::RandomRows(rng, 6, 12000, "ACGT"));
  const int32_t l = ComputePolyStats(ad, 1, 12000).NetSites;
  const PairCounts d = PairwiseDifferences(ad, 1, 12000);
  ASSERT_GT(d.at(1, 2), 4096);
  const double expected = PlainVariance(ad, 1, 12000, l);
  EXPECT_NEAR(SamplingVarianceOfPi(d, l).Variance, expected, 1e-12 * std::fabs(expected) + 1e-18);
}

TEST(PiJukesCantor, HandWorkedAlignment) {
  const auto ad = test::Selected(test::HandRows());
  // x = 4 d / 24 = d / 6: five pairs with d = 2 (x = 1/3) and five with d = 3 (x = 1/2).
  const double two = -0.75 * std::log(1.0 - 1.0 / 3.0);
  const double three = -0.75 * std::log(0.5);
  EXPECT_NEAR(PiJukesCantor(PairwiseDifferences(ad, 1, 9), 8).value(), (two + three) / 2, 1e-14);
  EXPECT_NEAR(PiJukesCantor(ad, 1, 9, 8).value(), (two + three) / 2, 1e-14);
}

TEST(PiJukesCantor, SaturatedPairsAreLeftOut) {
  // L = 4. Sequences 1 and 3 differ at 3 sites (x = 1): left out of sum and count.
  // Pairs (1,2) d = 1, x = 1/3; (2,3) d = 2, x = 2/3.
  const auto ad = test::Selected({"AAAA", "AAAC", "ACCC"});
  const double expected =
      (-0.75 * std::log(1 - 1.0 / 3.0) + -0.75 * std::log(1 - 2.0 / 3.0)) / 2.0;
  EXPECT_NEAR(PiJukesCantor(PairwiseDifferences(ad, 1, 4), 4).value(), expected, 1e-14);
}

TEST(PiJukesCantor, NoUsablePairIsNotDetermined) {
  const auto ad = test::Selected({"AAA", "CCC"});  // d = 3, L = 3: x = 4/3
  EXPECT_FALSE(PiJukesCantor(PairwiseDifferences(ad, 1, 3), 3).has_value());
  // Identical sequences are a usable pair: Pi(JC) is 0.
  const auto same = test::Selected({"ACG", "ACG"});
  EXPECT_EQ(PiJukesCantor(PairwiseDifferences(same, 1, 3), 3).value(), 0.0);
}

}  // namespace
}  // namespace ovelt

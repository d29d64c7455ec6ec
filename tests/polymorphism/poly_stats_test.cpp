#include "analyses/polymorphism/common/poly_stats.h"

#include <gtest/gtest.h>

#include <random>

#include "core/random_alignment.h"
#include "poly_fixture.h"

namespace ovelt {
namespace {

TEST(PolyStats, HandWorkedAlignment) {
  const auto ad = test::Selected(test::HandRows());
  const PolyStats s = ComputePolyStats(ad, 1, 9);
  EXPECT_EQ(s.NetSites, 8);  // 9 sites, one with a gap
  EXPECT_EQ(s.SegSites, 5);
  EXPECT_FLOAT_EQ(s.Mutations, 6.0f);  // 5 + 1 for the three-variant site 9
  // 0.4 + 0.6 + 0.4 + 0.4 + 0.7
  EXPECT_NEAR(s.AvgDiffs, 2.5, 1e-12);
  EXPECT_NEAR(s.PiValue, 2.5 / 8, 1e-12);
}

TEST(PolyStats, SegregatingTotalsOfASubRegion) {
  const auto ad = test::Selected(test::HandRows());
  // Sites 3..7: site 3 (0.6), site 5 (0.4), site 7 a gap.
  const SegregatingCounts t = SegregatingTotals(ad, 3, 7);
  EXPECT_EQ(t.NetSites, 4);
  EXPECT_EQ(t.SegSites, 2);
  EXPECT_NEAR(t.SumDiversity, 1.0, 1e-12);
}

TEST(PolyStats, FourVariantsAddTwoMutations) {
  // Site 1 carries A, C, G, T: one segregating site, three mutations.
  const auto ad = test::Selected({"AA", "CA", "GA", "TA"});
  const PolyStats s = ComputePolyStats(ad, 1, 2);
  EXPECT_EQ(s.SegSites, 1);
  EXPECT_FLOAT_EQ(s.Mutations, 3.0f);
  // Gene diversity: (1 - 4 / 16) * 4 / 3 = 1.
  EXPECT_NEAR(s.AvgDiffs, 1.0, 1e-12);
}

TEST(PolyStats, OnlyGapSitesGiveNoNetSiteAndPiZero) {
  const auto ad = test::Selected({"A-?", "-C?", "AC?"});
  const PolyStats s = ComputePolyStats(ad, 1, 3);
  EXPECT_EQ(s.NetSites, 0);
  EXPECT_EQ(s.SegSites, 0);
  EXPECT_EQ(s.PiValue, 0.0);
}

TEST(PolyStats, KEqualsTheMeanPairwiseDifferenceOnRandomAlignments) {
  std::mt19937 rng(2024);
  for (int round = 0; round < 20; ++round) {
    const int n = 2 + round % 9;
    const auto ad = test::Selected(test::RandomRows(rng, n, 60, "ACGT-"));
    const PolyStats s = ComputePolyStats(ad, 1, 60);
    double sum = 0.0;
    for (int i = 1; i <= n; ++i)
      for (int j = i + 1; j <= n; ++j) sum += test::PlainDifferences(ad, i, j, 1, 60);
    EXPECT_NEAR(s.AvgDiffs, sum / (n * (n - 1) / 2.0), 1e-9) << "round " << round;
  }
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/size_changes/mismatch_distribution.h"

#include <gtest/gtest.h>

#include <numeric>

#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

TEST(MismatchDistribution, CountsPairsByDifferencesAsCountedByHand) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const MismatchDistribution m = ComputeMismatch(ad, 1, 8);
  EXPECT_EQ(m.Pairs, 10);
  EXPECT_EQ(m.MaxDiff, 3);
  EXPECT_EQ(m.Mismatch, (std::vector<int64_t>{0, 4, 4, 2}));
}

TEST(MismatchDistribution, SumsToThePairsAndHasMeanK) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const MismatchDistribution m = ComputeMismatch(ad, 1, 8);
  EXPECT_EQ(std::accumulate(m.Mismatch.begin(), m.Mismatch.end(), int64_t{0}), 5 * 4 / 2);
  // k as the sum of per-site diversities: three singleton sites of 0.4 and one 2:3 site of 0.6.
  double k = 0.0;
  for (int32_t site = 1; site <= 8; ++site) {
    if (ad.SelSiteClass1[static_cast<size_t>(site)] != kGapOrMissing)
      k += ad.SelSiteDiversity1[static_cast<size_t>(site)];
  }
  EXPECT_NEAR(k, 1.8, 1e-12);
  EXPECT_NEAR(MismatchMean(m), k, 1e-12);
}

TEST(MismatchDistribution, VarianceAroundKByHand) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const MismatchDistribution m = ComputeMismatch(ad, 1, 8);
  // (4 * 0.8^2 + 4 * 0.2^2 + 2 * 1.2^2) / 9 = 5.6 / 9.
  EXPECT_NEAR(MismatchVariance(m, 1.8), 5.6 / 9.0, 1e-12);
}

TEST(MismatchDistribution, GapSitesAreSkipped) {
  // Site 7 is the gap site: sequences 1 and 3 differ there in no nucleotide, and a region of
  // that site alone gives no difference at all.
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const MismatchDistribution m = ComputeMismatch(ad, 7, 7);
  EXPECT_EQ(m.MaxDiff, 0);
  EXPECT_EQ(m.Mismatch[0], 10);
}

TEST(MismatchDistribution, TwoSequencesMakeOnePairWithNoVariance) {
  const auto ad = test::SelectedAlignment({"ACGTAC", "ACTTGA"});
  const MismatchDistribution m = ComputeMismatch(ad, 1, 6);
  EXPECT_EQ(m.Pairs, 1);
  EXPECT_EQ(m.MaxDiff, 3);
  EXPECT_EQ(m.Mismatch, (std::vector<int64_t>{0, 0, 0, 1}));
  EXPECT_EQ(MismatchVariance(m, 3.0), 0.0);
}

}  // namespace
}  // namespace ovelt

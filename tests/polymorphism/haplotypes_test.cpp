#include "analyses/polymorphism/common/haplotypes.h"

#include <gtest/gtest.h>

#include <random>

#include "core/random_alignment.h"
#include "poly_fixture.h"

namespace ovelt {
namespace {

TEST(Haplotypes, FiveDistinctSequences) {
  const auto ad = test::Selected(test::HandRows());
  const HaplotypeStats h = ComputeHaplotypes(ad, 1, 9);
  EXPECT_EQ(h.Haplotypes, 5);
  // p = 1/5 each: Q2 = 0.2, Q3 = 0.04. Hd = 0.8 * 5 / 4 = 1.
  EXPECT_NEAR(h.Hd, 1.0, 1e-12);
  // VarHd = 2 / 20 * (2 * 3 * (0.04 - 0.04) + 0.2 - 0.04) = 0.016.
  EXPECT_NEAR(h.VarHd, 0.016, 1e-12);
}

TEST(Haplotypes, SequencesDifferingOnlyAtExcludedSitesAreOneHaplotype) {
  // Site 5 is class 5 (a gap in sequence 3): sequences 1 and 2 differ only there.
  const auto ad = test::Selected({"ACGTA", "ACGTT", "ATGT-"});
  const HaplotypeStats h = ComputeHaplotypes(ad, 1, 5);
  EXPECT_EQ(h.Haplotypes, 2);
  EXPECT_EQ(h.Members, (std::vector<int32_t>{2, 1}));
  EXPECT_EQ(h.HaplotypeOf, (std::vector<int32_t>{0, 1, 1, 2}));
  // Q2 = 4/9 + 1/9 = 5/9, Q3 = 8/27 + 1/27 = 1/3.
  // Hd = (4/9) * 3/2 = 2/3; VarHd = (1/3) (2 (1/3 - 25/81) + 5/9 - 25/81) = 8/81.
  EXPECT_NEAR(h.Hd, 2.0 / 3.0, 1e-12);
  EXPECT_NEAR(h.VarHd, 8.0 / 81.0, 1e-12);
}

TEST(Haplotypes, OneHaplotypeHasNoDiversity) {
  const auto ad = test::Selected({"ACGT", "ACGT", "ACGT"});
  const HaplotypeStats h = ComputeHaplotypes(ad, 1, 4);
  EXPECT_EQ(h.Haplotypes, 1);
  EXPECT_EQ(h.Hd, 0.0);
  EXPECT_EQ(h.VarHd, 0.0);
}

TEST(Haplotypes, TwoSequencesGiveFiniteValues) {
  // n - 2 = 0 in the first term: VarHd = 2 / 2 * (0.5 - 0.25) = 0.25, Hd = 0.5 * 2 = 1.
  const auto ad = test::Selected({"ACGT", "ACGA"});
  const HaplotypeStats h = ComputeHaplotypes(ad, 1, 4);
  EXPECT_EQ(h.Haplotypes, 2);
  EXPECT_NEAR(h.Hd, 1.0, 1e-12);
  EXPECT_NEAR(h.VarHd, 0.25, 1e-12);
}

TEST(Haplotypes, TheGaugeRisesTo100AndNeverFalls) {
  const auto ad = test::Selected(test::HandRows());
  std::vector<int> seen;
  (void)ComputeHaplotypes(ad, 1, 9, [&seen](int p) { seen.push_back(p); });
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), 100);
  for (size_t i = 1; i < seen.size(); ++i) EXPECT_GE(seen[i], seen[i - 1]);
}

// Leaders and members as the plain comparison of every later sequence with each leader.
std::vector<int32_t> PlainMembers(const Selection& ad, int32_t from, int32_t to) {
  const int32_t n = ad.SelOutCount;
  std::vector<int32_t> leader(static_cast<size_t>(n) + 1, 0), members;
  for (int32_t i = 1; i <= n; ++i) {
    if (leader[static_cast<size_t>(i)] != 0) continue;
    members.push_back(1);
    for (int32_t j = i + 1; j <= n; ++j)
      if (leader[static_cast<size_t>(j)] == 0 && test::PlainDifferences(ad, i, j, from, to) == 0) {
        leader[static_cast<size_t>(j)] = i;
        ++members.back();
      }
  }
  return members;
}

TEST(Haplotypes, AgreeWithThePlainComparisonOnRandomAlignments) {
  std::mt19937 rng(99);
  for (int round = 0; round < 30; ++round) {
    const int n = 2 + round % 12;
    // Two letters and few sites make repeated haplotypes common.
    const auto ad = test::Selected(test::RandomRows(rng, n, 4 + round % 4, "AG-"));
    const int32_t sites = ad.data().NumSites;
    const HaplotypeStats h = ComputeHaplotypes(ad, 1, sites);
    EXPECT_EQ(h.Members, PlainMembers(ad, 1, sites)) << "round " << round;
  }
}

}  // namespace
}  // namespace ovelt

// The per-site share of differing between-population pairs.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "analyses/divergence/common/site_dxy.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

using test::TwoPopulations;

TEST(SiteDxy, HandWorkedSites) {
  //                         site 12345678
  const auto sel = TwoPopulations({"AAAACAA-",   //
                                   "AACACCGA",   //
                                   "ACCACGTA"},  //
                                  {"AAAGATAA",   //
                                   "AACGATAA"});
  const std::vector<double> dxy = BuildSiteDxy(sel);
  ASSERT_EQ(dxy.size(), 9U);
  // 1: A everywhere: no pair differs.
  EXPECT_DOUBLE_EQ(dxy[1], 0.0);
  // 2: A A C against A A: the C differs from both, 2 of the 3 x 2 pairs.
  EXPECT_DOUBLE_EQ(dxy[2], 2.0 / 6.0);
  // 3: A C C against A C: A differs from C once, each C differs from A once: 3 of 6.
  EXPECT_DOUBLE_EQ(dxy[3], 3.0 / 6.0);
  // 4 and 5: each population fixed, for different nucleotides: every pair differs.
  EXPECT_DOUBLE_EQ(dxy[4], 1.0);
  EXPECT_DOUBLE_EQ(dxy[5], 1.0);
  // 6: A C G against T T: no nucleotide in common.
  EXPECT_DOUBLE_EQ(dxy[6], 1.0);
  // 7: A G T against A A: G and T differ from both, 4 of 6.
  EXPECT_DOUBLE_EQ(dxy[7], 4.0 / 6.0);
  // 8: a gap in population 1 leaves the site at 0, although population 2 is clean.
  EXPECT_EQ(sel.SelSiteClass1[8], 5);
  EXPECT_EQ(sel.SelSiteClass2[8], 0);
  EXPECT_DOUBLE_EQ(dxy[8], 0.0);
}

TEST(SiteDxy, GapInPopulationTwoOrMissingDataGivesZero) {
  const auto sel = TwoPopulations({"AC", "GC"}, {"T?", "-A"});
  const std::vector<double> dxy = BuildSiteDxy(sel);
  EXPECT_DOUBLE_EQ(dxy[1], 0.0);
  EXPECT_DOUBLE_EQ(dxy[2], 0.0);
}

TEST(SiteDxy, GapOutsideBothPopulationsDoesNotCount) {
  // The third row is in neither set: its gap makes the file's site class 5 but not the
  // populations'.
  const auto sel = TwoPopulations({"A", "C"}, {"C"}, {"-"});
  EXPECT_EQ(sel.SelSiteClass1[1], 1);
  EXPECT_EQ(sel.SelSiteClass2[1], 0);
  EXPECT_DOUBLE_EQ(BuildSiteDxy(sel)[1], 0.5);
}

TEST(SiteDxy, MonomorphicPopulationsCompareTheirFirstSequences) {
  const auto sel = TwoPopulations({"AG", "AG", "AG"}, {"AT", "AT"});
  const std::vector<double> dxy = BuildSiteDxy(sel);
  EXPECT_DOUBLE_EQ(dxy[1], 0.0);
  EXPECT_DOUBLE_EQ(dxy[2], 1.0);
}

// Plain twin: every between-population pair compared cell by cell.
double PairwiseShare(const std::vector<std::string>& pop1, const std::vector<std::string>& pop2,
                     size_t column) {
  for (const auto* pop : {&pop1, &pop2})
    for (const auto& row : *pop)
      if (row[column] == '-' || row[column] == '?') return 0.0;
  int differ = 0;
  for (const auto& a : pop1)
    for (const auto& b : pop2)
      if (a[column] != b[column]) ++differ;
  return static_cast<double>(differ) / static_cast<double>(pop1.size() * pop2.size());
}

TEST(SiteDxy, EqualsThePairwiseCountOnRandomAlignments) {
  std::mt19937 rng(20261125);
  const std::string symbols = "ACGT-?";
  for (int round = 0; round < 40; ++round) {
    const int sites = 30;
    const auto n1 = static_cast<size_t>(1 + round % 6);
    const auto n2 = static_cast<size_t>(1 + (round / 6) % 5);
    std::vector<std::string> pop1(n1, std::string(sites, 'A')), pop2(n2, std::string(sites, 'A'));
    for (int s = 0; s < sites; ++s) {
      // Few variants per site, and a gap now and then.
      const int spread = static_cast<int>(rng() % 4);
      for (auto* pop : {&pop1, &pop2})
        for (auto& row : *pop) {
          const auto pick = rng() % 40;
          row[static_cast<size_t>(s)] =
              pick == 0 ? symbols[4 + rng() % 2] : symbols[rng() % static_cast<unsigned>(spread + 1)];
        }
    }
    const auto sel = TwoPopulations(pop1, pop2);
    const std::vector<double> dxy = BuildSiteDxy(sel);
    for (int s = 0; s < sites; ++s)
      EXPECT_DOUBLE_EQ(dxy[static_cast<size_t>(s + 1)], PairwiseShare(pop1, pop2, static_cast<size_t>(s)))
          << "round " << round << " site " << s + 1;
  }
}

}  // namespace
}  // namespace ovelt

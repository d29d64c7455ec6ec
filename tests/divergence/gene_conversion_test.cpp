// Gene conversion tracts and Psi (Betrán et al. 1997) on alignments worked by hand.
#include <gtest/gtest.h>

#include <vector>

#include "analyses/divergence/gene_conversion/conversion_tracts.h"
#include "analyses/divergence/gene_conversion/gene_conversion_compute.h"
#include "analyses/divergence/gene_conversion/informative_sites.h"
#include "analyses/divergence/gene_conversion/site_psi.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

// Population 1 is fixed for C but for one G (site 6); population 2 is fixed for A but for line 1,
// which carries population 1's C at sites 2, 4, 5, 7, 9, 11 and 12, and a gap at site 3.
//   line 1 of population 2, site by site: 1 A (common at home, absent abroad: no run open);
//   2 C opens a run; 3 gap (not informative); 4, 5 C; 6 G, common at home but present abroad
//   (y = 1/3): the run stays open; 7 C; 8 A closes it: a tract 2-7, 6 sites less one gap.
//   9 C opens a run that 10 A closes at one site: no tract, and site 9 is back to the first
//   pass. 11, 12 C: the run still open at the end of the region is a tract 11-12.
test::OwnedSelection Tracts() {
  return test::TwoPopulations({"CCCCCGCCCCCC",   //
                               "CCCCCCCCCCCC",   //
                               "CCCCCCCCCCCC"},  //
                              {"AC-CCGCACACC",   //
                               "AAAAAGAAAAAA",   //
                               "AAAAAGAAAAAA",   //
                               "AAAAAGAAAAAA",   //
                               "AAAAAGAAAAAA",   //
                               "AAAAAGAAAAAA"});
}

TEST(ConversionPsi, HandWorkedCounts) {
  // n1 = n2 = 6; population 2 holds T four times and A twice, population 1 A six times. T seen
  // from population 2: a = (0 x 5/6 + 1) / 6 = 1/6 <= 0.2 and b = 4/6 >= 3a: it counts. No other
  // nucleotide counts: Psi = 4/6 / 2.
  EXPECT_DOUBLE_EQ(PsiFromCounts({6, 0, 0, 0}, 6, {2, 4, 0, 0}, 6), 1.0 / 3.0);
  // Each population fixed for its own nucleotide, five lines each: a = 1/5 for the foreign one;
  // 3a is a hair above 0.6 in doubles, and b = 1 passes in both directions: Psi = 1.
  EXPECT_DOUBLE_EQ(PsiFromCounts({0, 0, 5, 0}, 5, {5, 0, 0, 0}, 5), 1.0);
  // The same nucleotide in both: nothing counts.
  EXPECT_DOUBLE_EQ(PsiFromCounts({5, 0, 0, 0}, 5, {5, 0, 0, 0}, 5), 0.0);
}

TEST(ConversionSites, InformativeSitesOfTheHandWorkedPair) {
  const auto sel = Tracts();
  const std::vector<uint8_t> informative = MarkInformativeSites(sel, 1, 12);
  // Every site but the gap site 3: monomorphic and different with six lines in population 2
  // (1, 8, 10), or polymorphic in either population.
  for (int32_t site = 1; site <= 12; ++site)
    EXPECT_EQ(informative[static_cast<size_t>(site)], site == 3 ? 0 : 1) << site;
}

TEST(ConversionSites, MonomorphicDifferenceNeedsFiveLinesSomewhere) {
  const auto small = test::TwoPopulations({"A", "A", "A", "A"}, {"C", "C", "C", "C"});
  EXPECT_EQ(MarkInformativeSites(small, 1, 1)[1], 0);
  const auto large = test::TwoPopulations({"A", "A", "A"}, {"C", "C", "C", "C", "C"});
  EXPECT_EQ(MarkInformativeSites(large, 1, 1)[1], 1);
}

TEST(ConversionTracts, RunsGapsSingleSitesAndTheEndOfTheRegion) {
  const auto sel = Tracts();
  std::vector<double> psi(13, 0.0);
  const TractScan scan = FindConversionTracts(sel, MarkInformativeSites(sel, 1, 12), 1, 12, psi);
  ASSERT_EQ(scan.Tracts.size(), 2U);
  EXPECT_EQ(scan.Tracts[0], (ConversionTract{2, 1, 2, 7, 5}));
  EXPECT_EQ(scan.Tracts[1], (ConversionTract{2, 1, 11, 12, 2}));
  std::vector<int32_t> sites;
  for (const TractSite& s : scan.Sites) sites.push_back(s.Site);
  EXPECT_EQ(sites, (std::vector<int32_t>{2, 4, 5, 7, 11, 12}));
  for (const int32_t site : sites) EXPECT_EQ(psi[static_cast<size_t>(site)], -1.0) << site;
  EXPECT_EQ(psi[9], 0.0);  // the single site went back
}

TEST(ConversionTracts, ARegionEndingInsideARunClosesItThere) {
  const auto sel = Tracts();
  std::vector<double> psi(13, 0.0);
  // 1-5: the run 2, 4, 5 is still open at site 5.
  const TractScan scan = FindConversionTracts(sel, MarkInformativeSites(sel, 1, 5), 1, 5, psi);
  ASSERT_EQ(scan.Tracts.size(), 1U);
  EXPECT_EQ(scan.Tracts[0], (ConversionTract{2, 1, 2, 5, 3}));
}

TEST(ConversionRun, PsiOfTheRegion) {
  const auto sel = Tracts();
  const GeneConversionResult r = ComputeGeneConversion(sel, std::nullopt);
  // First pass: sites 1, 8, 10 monomorphic and different with one population of five lines or
  // more: 1/2; site 6: C is 2/3 of population 1 and absent from population 2 (a = 1/6): Psi =
  // (2/3) / 2; site 9 (C once in population 2): nothing counts; site 3 has a gap.
  // Second pass at the tract sites: line 1 counts as A, population 2 is fixed for A and
  // population 1 for C: C counts with b = 1 from population 1, A from population 2 has
  // a = 1/3 > 0.2: Psi = 1/2.
  const std::vector<double> expected = {0,   0.5, 0.5, 0,   0.5, 0.5, 1.0 / 3.0,
                                        0.5, 0.5, 0,   0.5, 0.5, 0.5};
  for (int32_t site = 1; site <= 12; ++site)
    EXPECT_DOUBLE_EQ(r.PsiBySite[static_cast<size_t>(site)], expected[static_cast<size_t>(site)])
        << site;
  EXPECT_EQ(r.NetSites, 11);
  EXPECT_DOUBLE_EQ(r.Psi, (9 * 0.5 + 1.0 / 3.0) / 11);
  EXPECT_EQ(r.SitesWithInformation, 10);
  EXPECT_EQ(r.Tracts.size(), 2U);
  const std::vector<InformativeSite> rows = r.InformativeSites();
  ASSERT_EQ(rows.size(), 10U);
  EXPECT_EQ(rows[5].Site, 7);
}

TEST(ConversionPsi, TractLinesOfBothPopulationsJoinTheirOwnCommonNucleotide) {
  // Site 1: population 1 A C C C C with line 1 (A) in a tract; population 2 A C A A A with line 2
  // (C) in a tract. Starred, population 1 is C five times and population 2 A five times: each
  // nucleotide counts from its side with a = 1/5: Psi = (1 + 1) / 2. Had both stars gone to one
  // population, or none been set, the site would give less.
  const auto sel = test::TwoPopulations({"A", "C", "C", "C", "C"}, {"A", "C", "A", "A", "A"});
  std::vector<double> psi(2, -1.0);
  TractPsiPass(sel, {{1, 1, 1}, {2, 2, 1}}, psi);
  EXPECT_DOUBLE_EQ(psi[1], 1.0);
  std::vector<double> plain(2, 0.0);
  FirstPsiPass(sel, 1, 1, plain);
  EXPECT_LT(plain[1], 1.0);
}

TEST(ConversionPsi, TheCommonNucleotideOfATieIsTheFirstOfATCG) {
  // Population 2: A, A, T, T and lines 5 and 6 (G) in a tract: A and T tie at two, and the two
  // stars join A, the first of A, T, C, G. Population 1 is T six times. With A four times in
  // population 2, A counts from there (a = 1/6, b = 4/6): Psi = (4/6) / 2. Had the stars joined
  // T, A would be 2/6 < 3a and Psi 0.
  const auto sel =
      test::TwoPopulations({"T", "T", "T", "T", "T", "T"}, {"A", "A", "T", "T", "G", "G"});
  std::vector<double> psi(2, -1.0);
  TractPsiPass(sel, {{2, 5, 1}, {2, 6, 1}}, psi);
  EXPECT_DOUBLE_EQ(psi[1], 1.0 / 3.0);
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/neutrality/neutrality_sites.h"

#include <gtest/gtest.h>

#include <random>

#include "analyses/polymorphism/neutrality/neutrality_totals.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

TEST(NeutralitySites, SingletonCountPerSite) {
  const auto sel = test::SelectedAlignment(NeutralityRows());
  EXPECT_EQ(SingletonCount(sel.SelMatrix1, 1, 5), 1);   // AAAGA
  EXPECT_EQ(SingletonCount(sel.SelMatrix1, 3, 5), 0);   // CCCCC
  EXPECT_EQ(SingletonCount(sel.SelMatrix1, 9, 5), 0);   // GAGAG
  EXPECT_EQ(SingletonCount(sel.SelMatrix1, 10, 5), 2);  // AACAT
  EXPECT_EQ(SingletonCount(sel.SelMatrix1, 10, 4), 1);  // AACA: only C
}

TEST(NeutralitySites, OutgroupStateExternalCountAndUsability) {
  const auto sel = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  EXPECT_EQ(OutgroupState(sel.SelMatrix2, 1, 1), 'A');
  EXPECT_EQ(OutgroupState(sel.SelMatrix2, 7, 1), 0);        // a gap
  EXPECT_EQ(ExternalCount(sel.SelMatrix1, 1, 5, 'A'), 1);   // the G of AAAGA
  EXPECT_EQ(ExternalCount(sel.SelMatrix1, 2, 5, 'T'), 0);   // the singleton T is ancestral
  EXPECT_EQ(ExternalCount(sel.SelMatrix1, 10, 5, 'A'), 2);  // C and T of AACAT
  EXPECT_TRUE(OutgroupUsable(sel.SelMatrix1, 5, sel.SelMatrix2, 1, 1));
  EXPECT_TRUE(OutgroupUsable(sel.SelMatrix1, 5, sel.SelMatrix2, 1, 5));   // monomorphic, fixed
  EXPECT_FALSE(OutgroupUsable(sel.SelMatrix1, 5, sel.SelMatrix2, 1, 7));  // gap
  EXPECT_FALSE(OutgroupUsable(sel.SelMatrix1, 5, sel.SelMatrix2, 1, 9));  // C absent from GAGAG
}

TEST(NeutralitySites, OutgroupSequencesThatDisagreeAreNotUsable) {
  ActiveData ad = test::MakeAlignment({"AC", "AC", "AT", "AC", "GC", "GT"});
  test::AddSet(ad, "In", {1, 2, 3, 4});
  test::AddSet(ad, "Out", {5, 6});
  Selection sel = SelectTwoSets(ad, 1, 2, ad.Region);
  EXPECT_EQ(OutgroupState(sel.SelMatrix2, 1, 2), 'G');
  EXPECT_EQ(OutgroupState(sel.SelMatrix2, 2, 2), 0);
  EXPECT_FALSE(OutgroupUsable(sel.SelMatrix1, 4, sel.SelMatrix2, 2, 2));
}

TEST(NeutralitySites, TotalsWithoutOutgroup) {
  const auto sel = test::SelectedAlignment(NeutralityRows());
  const SiteTallies tallies = TallySites(sel, 1, 10);
  const NeutralityTotals mutations = SumTallies(tallies, 1, 10, true, 5);
  EXPECT_EQ(mutations.NetSites, 10);
  EXPECT_EQ(mutations.SegSites, 6);
  EXPECT_EQ(mutations.TotalMutations, 7);
  EXPECT_EQ(mutations.Eta, 7);
  EXPECT_EQ(mutations.EtaS, 6);
  EXPECT_NEAR(mutations.K, 2.9, 1e-12);
  const NeutralityTotals sites = SumTallies(tallies, 1, 10, false, 5);
  EXPECT_EQ(sites.Eta, 6);
  EXPECT_EQ(sites.EtaS, 5);
  // A stretch: sites 6..10 hold sites 6, 9, 10.
  const NeutralityTotals stretch = SumTallies(tallies, 6, 10, true, 5);
  EXPECT_EQ(stretch.SegSites, 3);
  EXPECT_EQ(stretch.TotalMutations, 4);
  EXPECT_EQ(stretch.EtaS, 3);
  EXPECT_NEAR(stretch.K, 1.7, 1e-12);
}

TEST(NeutralitySites, TotalsWithOutgroup) {
  const auto sel = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  const SiteTallies tallies = TallySitesWithOutgroup(sel, 1, 10);
  EXPECT_EQ(tallies.AmbiguousSites, std::vector<int32_t>{9});
  EXPECT_EQ(tallies.Classes[7], kGapOrMissing);
  const NeutralityTotals m = SumTallies(tallies, 1, 10, true, 5);
  EXPECT_EQ(m.NetSites, 9);
  EXPECT_EQ(m.SegSites, 5);
  EXPECT_EQ(m.TotalMutations, 6);
  EXPECT_EQ(m.EtaE, 5);
  EXPECT_EQ(m.EtaS, 6);
  EXPECT_NEAR(m.K, 2.3, 1e-12);
  // Derived copies: G x1, A x4, C x1, T x1, and C x1 with T x1: S(1) = 5, S(4) = 1.
  EXPECT_EQ(m.DerivedSpectrum, (std::vector<int32_t>{0, 5, 0, 0, 1, 0}));
  const NeutralityTotals s = SumTallies(tallies, 1, 10, false, 5);
  EXPECT_EQ(s.Eta, 5);
  EXPECT_EQ(s.EtaE, 4);
  EXPECT_EQ(s.EtaS, 5);
  // Counting sites, the two derived nucleotides of site 10 fold into one variant of 2 copies.
  EXPECT_EQ(s.DerivedSpectrum, (std::vector<int32_t>{0, 3, 1, 0, 1, 0}));
}

TEST(NeutralitySites, GapInTheCompleteFileExcludedWhenGapsInSetsIsTwo) {
  // Site 7, a gap of the outgroup only, is a gap site of the ingroup too under GapsInSets 2;
  // L stays 9 either way, since the outgroup's gap already takes the site out.
  const auto sel = test::WithOutgroup(NeutralityRows(), OutgroupRow(), 2);
  EXPECT_EQ(sel.SelSiteClass1[7], kGapOrMissing);
  const SiteTallies tallies = TallySitesWithOutgroup(sel, 1, 10);
  EXPECT_EQ(SumTallies(tallies, 1, 10, true, 5).NetSites, 9);
}

// The tallies count S, Eta and k as the polymorphism summary does, on random alignments with
// gaps, three- and four-variant sites.
TEST(NeutralitySites, AgreeWithThePolymorphismSummary) {
  std::mt19937 random(20240611);
  const std::string cells = "AAAACCGT-";
  for (int trial = 0; trial < 20; ++trial) {
    const int n = 4 + trial % 7, sites = 30 + trial;
    std::vector<std::string> rows(static_cast<size_t>(n),
                                  std::string(static_cast<size_t>(sites), 'A'));
    for (auto& row : rows)
      for (auto& cell : row) cell = cells[random() % cells.size()];
    const auto sel = test::SelectedAlignment(rows);
    const PolyStats expected = ComputePolyStats(sel, 3, sites - 2);
    const NeutralityTotals t = SumTallies(TallySites(sel, 3, sites - 2), 3, sites - 2, true, n);
    EXPECT_EQ(t.NetSites, expected.NetSites) << trial;
    EXPECT_EQ(t.SegSites, expected.SegSites) << trial;
    EXPECT_EQ(t.TotalMutations, static_cast<int32_t>(expected.Mutations)) << trial;
    EXPECT_NEAR(t.K, expected.AvgDiffs, 1e-12) << trial;
    // Singletons cell by cell.
    int32_t singletons = 0;
    for (int32_t site = 3; site <= sites - 2; ++site) {
      if (sel.SelSiteClass1[static_cast<size_t>(site)] == kGapOrMissing) continue;
      for (const char base : std::string("ACGT")) {
        int count = 0;
        for (int seq = 1; seq <= n; ++seq) count += sel.SelMatrix1.at(site, seq) == base ? 1 : 0;
        singletons += count == 1 ? 1 : 0;
      }
    }
    EXPECT_EQ(t.EtaS, singletons) << trial;
  }
}

}  // namespace
}  // namespace ovelt

#include "core/net_sites.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(NetSites, HandWorkedRegion) {
  // Columns: 1 AAAA (0), 2 AAAT (1, h 0.5), 3 AACC (2, h 2/3), 4 ACGG (3, h 5/6),
  // 5 ACGT (4, h 1), 6 A-AA (5), 7 ???? (5), 8 ---- (5).
  // h of ACGG: (1 - (1/16 + 1/16 + 4/16)) * 4/3 = 10/16 * 4/3 = 5/6.
  ActiveData ad = MakeAlignment({"AAAAAA?-", "AAACC-?-", "AACGGA?-", "ATCGTA?-"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  const NetSiteCount whole = CountNetSites(sel, 1, 8);
  EXPECT_EQ(whole.Net, 5);
  EXPECT_EQ(NetSites(sel, 1, 8), 5);
  EXPECT_EQ(whole.SegSites, 4);
  EXPECT_DOUBLE_EQ(whole.SumSiteDiversity, 0.5 + 2.0 / 3.0 + 5.0 / 6.0 + 1.0);
  EXPECT_EQ(ExtraMutations(sel, 1, 8), 1 + 2);
  EXPECT_EQ(ExtraMutations(sel, 1, 4), 1);
  // Sub-region 2..3.
  const NetSiteCount part = CountNetSites(sel, 2, 3);
  EXPECT_EQ(part.Net, 2);
  EXPECT_EQ(NetSites(sel, 2, 3), 2);
  EXPECT_EQ(part.SegSites, 2);
  EXPECT_DOUBLE_EQ(part.SumSiteDiversity, 0.5 + 2.0 / 3.0);
}

TEST(NetSites, AllGapSiteNeverEntersAStatistic) {
  // Defaults: GapsInWindow false, GapsInSets 1.
  ActiveData ad = MakeAlignment({"A-T", "C-T", "A?T"});
  ASSERT_FALSE(ad.GapsInWindow);
  ASSERT_EQ(ad.GapsInSets, 1);
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  const NetSiteCount count = CountNetSites(sel, 1, 3);
  EXPECT_EQ(count.Net, 2);
  EXPECT_EQ(count.SegSites, 1);
  EXPECT_DOUBLE_EQ(count.SumSiteDiversity, 2.0 / 3.0);  // site 1 ACA only
}

TEST(NetSites, RegionOfOnlyGapSitesHasNoNetSiteAndZeroDiversity) {
  ActiveData ad = MakeAlignment({"A-?T", "C--T", "AT?T"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  const NetSiteCount count = CountNetSites(sel, 2, 3);
  EXPECT_EQ(count.Net, 0);
  EXPECT_EQ(count.SegSites, 0);
  EXPECT_DOUBLE_EQ(count.SumSiteDiversity, 0.0);
  EXPECT_DOUBLE_EQ(DiversityPerSite(count.SumSiteDiversity, count.Net), 0.0);
}

TEST(NetSites, DiversityPerSiteDividesByNetSites) {
  EXPECT_DOUBLE_EQ(DiversityPerSite(1.5, 3), 0.5);
  EXPECT_DOUBLE_EQ(DiversityPerSite(1.5, 0), 0.0);
}

TEST(NetSites, FixedGapsCountSitesWithoutAnyNucleotide) {
  // 1 all "-" (stored count 3 = SelCount1), 2 "-?-" (walked), 3 "-A-" (a nucleotide),
  // 4 "???" (walked), 5 normal.
  ActiveData ad = MakeAlignment({"---?A", "-?A?C", "---?A"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_DOUBLE_EQ(sel.SelSiteDiversity1[1], 3.0);
  sel.Region = {1, 5};
  EXPECT_EQ(FixedGaps(sel), 3);
  sel.Region = {3, 5};
  EXPECT_EQ(FixedGaps(sel), 1);
  // The region the selection was made over counts, not the one the data keeps.
  const Selection part = SelectOneSet(ad, 0, {3, 5});
  EXPECT_EQ(FixedGaps(part), 1);
}

TEST(NetSites, FixedGapsWithinTheSelection) {
  // Site 1 has a nucleotide only in sequence 3, outside the set.
  ActiveData ad = MakeAlignment({"-A", "?A", "TA"});
  test::AddSet(ad, "Gapped", {1, 2});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(FixedGaps(sel), 1);
}

}  // namespace
}  // namespace ovelt

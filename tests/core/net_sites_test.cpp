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
  SelectOneSet(ad, 0);
  const int32_t net = NetSites(ad, 1, 8);
  EXPECT_EQ(net, 5);
  EXPECT_EQ(ad.SegSites, 4);
  EXPECT_DOUBLE_EQ(ad.SumSiteDiversity, 0.5 + 2.0 / 3.0 + 5.0 / 6.0 + 1.0);
  EXPECT_EQ(ExtraMutations(ad, 1, 8), 1 + 2);
  EXPECT_EQ(ExtraMutations(ad, 1, 4), 1);
  // Sub-region 2..3.
  EXPECT_EQ(NetSites(ad, 2, 3), 2);
  EXPECT_EQ(ad.SegSites, 2);
  EXPECT_DOUBLE_EQ(ad.SumSiteDiversity, 0.5 + 2.0 / 3.0);
}

TEST(NetSites, AllGapSiteNeverEntersAStatistic) {
  // Defaults: GapsInWindow false, GapsInSets 1.
  ActiveData ad = MakeAlignment({"A-T", "C-T", "A?T"});
  ASSERT_FALSE(ad.GapsInWindow);
  ASSERT_EQ(ad.GapsInSets, 1);
  SelectOneSet(ad, 0);
  EXPECT_EQ(NetSites(ad, 1, 3), 2);
  EXPECT_EQ(ad.SegSites, 1);
  EXPECT_DOUBLE_EQ(ad.SumSiteDiversity, 2.0 / 3.0);  // site 1 ACA only
}

TEST(NetSites, RegionOfOnlyGapSitesHasNoNetSiteAndZeroDiversity) {
  ActiveData ad = MakeAlignment({"A-?T", "C--T", "AT?T"});
  SelectOneSet(ad, 0);
  const int32_t net = NetSites(ad, 2, 3);
  EXPECT_EQ(net, 0);
  EXPECT_EQ(ad.SegSites, 0);
  EXPECT_DOUBLE_EQ(ad.SumSiteDiversity, 0.0);
  EXPECT_DOUBLE_EQ(DiversityPerSite(ad.SumSiteDiversity, net), 0.0);
}

TEST(NetSites, DiversityPerSiteDividesByNetSites) {
  EXPECT_DOUBLE_EQ(DiversityPerSite(1.5, 3), 0.5);
  EXPECT_DOUBLE_EQ(DiversityPerSite(1.5, 0), 0.0);
}

TEST(NetSites, FixedGapsCountSitesWithoutAnyNucleotide) {
  // 1 all "-" (stored count 3 = SelCount1), 2 "-?-" (walked), 3 "-A-" (a nucleotide),
  // 4 "???" (walked), 5 normal.
  ActiveData ad = MakeAlignment({"---?A", "-?A?C", "---?A"});
  SelectOneSet(ad, 0);
  EXPECT_DOUBLE_EQ(ad.SelSiteDiversity1[1], 3.0);
  ad.Region = {1, 5};
  EXPECT_EQ(FixedGaps(ad), 3);
  ad.Region = {3, 5};
  EXPECT_EQ(FixedGaps(ad), 1);
}

TEST(NetSites, FixedGapsWithinTheSelection) {
  // Site 1 has a nucleotide only in sequence 3, outside the set.
  ActiveData ad = MakeAlignment({"-A", "?A", "TA"});
  test::AddSet(ad, "Gapped", {1, 2});
  SelectOneSet(ad, 1);
  EXPECT_EQ(FixedGaps(ad), 1);
}

}  // namespace
}  // namespace ovelt

#include "analyses/recombination/four_gametes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/alignment_fixture.h"
#include "recombination/rm_example.h"

namespace ovelt {
namespace {

Selection All(const ActiveData& ad) { return SelectOneSet(ad, 0, {1, ad.NumSites}); }

TEST(FourGametes, WorkedExample) {
  const ActiveData ad = test::MakeAlignment(test::RmExampleRows());
  const FourGameteTable t = FourGametePairs(All(ad), 1, 9);
  EXPECT_EQ(t.Sites, (std::vector<int32_t>{1, 3, 5, 6, 7, 9}));
  EXPECT_TRUE(t.OtherVariants.empty());
  EXPECT_EQ(t.PairsCompared, 15);
  EXPECT_EQ(t.Pairs, (std::vector<SiteInterval>{{1, 6}, {1, 9}, {3, 5}, {3, 7}, {5, 7}, {6, 9}}));
}

TEST(FourGametes, AllelesFromSequenceOneAndTheLastThatDiffers) {
  const ActiveData ad = test::MakeAlignment({"AC", "GC", "GT", "AC"});
  const Selection sel = All(ad);
  EXPECT_EQ(RmAlleles(sel, 1).First, 'A');
  EXPECT_EQ(RmAlleles(sel, 1).Second, 'G');
  EXPECT_EQ(RmAlleles(sel, 2).First, 'C');
  EXPECT_EQ(RmAlleles(sel, 2).Second, 'T');
}

TEST(FourGametes, ThreeGametesAreNotEnough) {
  // Gametes AC, GC, GT: no AT.
  const ActiveData ad = test::MakeAlignment({"AC", "GC", "GT", "GT"});
  EXPECT_TRUE(FourGametePairs(All(ad), 1, 2).Pairs.empty());
  const ActiveData four = test::MakeAlignment({"AC", "GC", "GT", "AT"});
  EXPECT_EQ(FourGametePairs(All(four), 1, 2).Pairs, (std::vector<SiteInterval>{{1, 2}}));
}

TEST(FourGametes, OnlyBiallelicSitesWithoutGaps) {
  // Site 2 has three variants, site 4 a gap: neither enters, site 2 is listed apart.
  const ActiveData ad = test::MakeAlignment({"AAGC", "GCGC", "GTT-", "ACTC"});
  const FourGameteTable t = FourGametePairs(All(ad), 1, 4);
  EXPECT_EQ(t.Sites, (std::vector<int32_t>{1, 3}));
  EXPECT_EQ(t.OtherVariants, (std::vector<int32_t>{2}));
  EXPECT_EQ(t.PairsCompared, 1);
}

TEST(FourGametes, ManySequencesSpanSeveralWords) {
  // 130 sequences: the three gametes other than sequence 1's come from sequences 70, 101 and
  // 130, whose bits lie in the second and third 64-bit words of the bit sets.
  std::vector<std::string> rows(130, "AC");
  rows[69] = "GC";
  rows[100] = "AT";
  rows[129] = "GT";
  const ActiveData ad = test::MakeAlignment(rows);
  EXPECT_EQ(FourGametePairs(All(ad), 1, 2).Pairs, (std::vector<SiteInterval>{{1, 2}}));
  rows[129] = "GC";
  const ActiveData three = test::MakeAlignment(rows);
  EXPECT_TRUE(FourGametePairs(All(three), 1, 2).Pairs.empty());
}

TEST(FourGametes, RegionBoundsTheSites) {
  const ActiveData ad = test::MakeAlignment(test::RmExampleRows());
  const FourGameteTable t = FourGametePairs(All(ad), 2, 7);
  EXPECT_EQ(t.Sites, (std::vector<int32_t>{3, 5, 6, 7}));
  EXPECT_EQ(t.Pairs, (std::vector<SiteInterval>{{3, 5}, {3, 7}, {5, 7}}));
}

}  // namespace
}  // namespace ovelt

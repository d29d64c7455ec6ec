#include "core/identical_lines.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(IdenticalLines, LargestGroupOfIdenticalSequences) {
  // Haplotypes: 1 = 3 = 5 (ACGT), 2 = 4 (ACGA), 6 alone. Largest group 3.
  ActiveData ad = MakeAlignment({"ACGT", "ACGA", "ACGT", "ACGA", "ACGT", "TCGA"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 4), 3);
  // Over site 1 alone: 1-5 carry A, 6 carries T.
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 1), 5);
}

TEST(IdenticalLines, GapSitesAreLeftOutOfTheComparison) {
  // Sequences 1 and 2 differ only at site 3, where sequence 3 has a gap: the site is class 5
  // and does not count, so all three are identical.
  ActiveData ad = MakeAlignment({"ACG", "ACT", "AC-"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  ASSERT_EQ(sel.SelSiteClass1[3], kGapOrMissing);
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 3), 3);
}

TEST(IdenticalLines, AllDifferentAndSingleSequence) {
  ActiveData ad = MakeAlignment({"A", "C", "G", "T"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 1), 1);
  ActiveData one = MakeAlignment({"ACGT"});
  sel = SelectOneSet(one, 0, one.Region);
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 4), 1);
}

TEST(IdenticalLines, GroupsWithinASet) {
  ActiveData ad = MakeAlignment({"AC", "AC", "TC", "TC", "TC"});
  test::AddSet(ad, "Mixed", {1, 3, 4});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(BuscaLineasIdenticas(sel, 1, 2), 2);
}

}  // namespace
}  // namespace ovelt

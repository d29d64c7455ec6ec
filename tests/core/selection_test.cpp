#include "core/selection.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(Selection, AllIncludedIsAPlainCopyThatSharesCells) {
  ActiveData ad = MakeAlignment({"ACGT", "ACGA", "TCGA"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_EQ(sel.SelSet1, 0);
  EXPECT_EQ(sel.SelCount1, 3);
  EXPECT_EQ(sel.SelOutCount, 3);
  EXPECT_TRUE(sel.SelMatrix1.shares_cells_with(ad.IncMatrix));
  EXPECT_TRUE(sel.SelMatrix1.shares_cells_with(ad.RawMatrix));
  EXPECT_EQ(sel.SelNames1, ad.IncNames);
  EXPECT_EQ(sel.SelSiteClass1, ad.SiteClass);
  EXPECT_EQ(sel.SelSiteDiversity1, ad.SiteDiversity);
  EXPECT_EQ(sel.SelSeqNumbers1, (std::vector<int32_t>{0, 1, 2, 3}));
}

TEST(Selection, NegativeSetIndexMeansAllIncluded) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  Selection sel = SelectOneSet(ad, -1, ad.Region);
  EXPECT_EQ(sel.SelCount1, 2);
  EXPECT_TRUE(sel.SelMatrix1.shares_cells_with(ad.IncMatrix));
}

TEST(Selection, SetMembersInTheSetsOrder) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG", "TTTT"}, {"one", "two", "three", "four"});
  test::AddSet(ad, "Mixed", {4, 2});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(sel.SelCount1, 2);
  EXPECT_EQ(sel.SelMatrix1.at(1, 1), 'T');
  EXPECT_EQ(sel.SelMatrix1.at(3, 2), 'C');
  EXPECT_EQ(sel.SelNames1, (std::vector<std::string>{"", FixedName("four"), FixedName("two")}));
  EXPECT_EQ(sel.SelSeqNumbers1, (std::vector<int32_t>{0, 4, 2}));
}

TEST(Selection, SetListingAnExcludedSequenceKeepsItAndTheSelectionSkipsIt) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG", "TTTT"});
  test::AddSet(ad, "Three", {1, 2, 3});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  // The set still lists sequence 2.
  EXPECT_EQ(ad.SequenceSets[1].max(), 3.0);
  EXPECT_EQ(ad.SequenceSets[1].secuencia(2), 2.0);
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(sel.SelCount1, 2);
  EXPECT_EQ(sel.SelSeqNumbers1, (std::vector<int32_t>{0, 1, 3}));
  EXPECT_EQ(sel.SelMatrix1.at(1, 2), 'G');
  EXPECT_EQ(sel.SelOutCount, 2);
}

TEST(Selection, TwoSetsMayShareASequence) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {1, 2});
  test::AddSet(ad, "Right", {2, 3});
  Selection sel = SelectTwoSets(ad, 1, 2, ad.Region);
  EXPECT_EQ(sel.SelSet1, 1);
  EXPECT_EQ(sel.SelSet2, 2);
  EXPECT_EQ(sel.SelCount1, 2);
  EXPECT_EQ(sel.SelCount2, 2);
  EXPECT_EQ(sel.SelMatrix1.at(1, 2), 'C');
  EXPECT_EQ(sel.SelMatrix2.at(1, 1), 'C');
  EXPECT_EQ(sel.SelNames2[2], FixedName("seq3"));
}

TEST(Selection, TwoSetsWithAllIncludedAsSecond) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {1});
  Selection sel = SelectTwoSets(ad, 1, 0, ad.Region);
  EXPECT_EQ(sel.SelCount1, 1);
  EXPECT_EQ(sel.SelCount2, 3);
  EXPECT_TRUE(sel.SelMatrix2.shares_cells_with(ad.IncMatrix));
}

TEST(Selection, FirstSetOnlyAndThirdSet) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {3});
  Selection sel = SelectFirstSetOnly(ad, 1, ad.Region);
  EXPECT_EQ(sel.SelCount1, 1);
  EXPECT_EQ(sel.SelMatrix1.at(4, 1), 'G');
  AddThirdSet(sel, 1);
  EXPECT_EQ(sel.SelSet3, 1);
  EXPECT_EQ(sel.SelCount3, 1);
  EXPECT_EQ(sel.SelMatrix3.at(2, 1), 'G');
  EXPECT_EQ(sel.SelNames3[1], FixedName("seq3"));
  AddThirdSet(sel, 0);
  EXPECT_EQ(sel.SelCount3, 3);
}

TEST(Selection, ASetIndexThatNamesNoSetSelectsNothing) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  Selection sel = SelectOneSet(ad, 5, ad.Region);
  EXPECT_EQ(sel.SelCount1, 0);
  EXPECT_EQ(sel.SelOutCount, 0);
  // Below the two sequences that the smallest selection of an analysis must hold (the runner's
  // refusal of such a selection is tested with the commands).
  EXPECT_LT(sel.SelOutCount, 2);
}

}  // namespace
}  // namespace ovelt

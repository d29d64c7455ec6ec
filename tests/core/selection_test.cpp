#include "core/selection.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(Selection, AllIncludedIsAPlainCopyThatSharesCells) {
  ActiveData ad = MakeAlignment({"ACGT", "ACGA", "TCGA"});
  SelectOneSet(ad, 0);
  EXPECT_EQ(ad.SelSet1, 0);
  EXPECT_EQ(ad.SelCount1, 3);
  EXPECT_EQ(ad.SelOutCount, 3);
  EXPECT_TRUE(ad.SelMatrix1.shares_cells_with(ad.IncMatrix));
  EXPECT_TRUE(ad.SelMatrix1.shares_cells_with(ad.RawMatrix));
  EXPECT_EQ(ad.SelNames1, ad.IncNames);
  EXPECT_EQ(ad.SelSiteClass1, ad.SiteClass);
  EXPECT_EQ(ad.SelSiteDiversity1, ad.SiteDiversity);
  EXPECT_EQ(ad.SelSeqNumbers1, (std::vector<int32_t>{0, 1, 2, 3}));
}

TEST(Selection, NegativeSetIndexMeansAllIncluded) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  SelectOneSet(ad, -1);
  EXPECT_EQ(ad.SelCount1, 2);
  EXPECT_TRUE(ad.SelMatrix1.shares_cells_with(ad.IncMatrix));
}

TEST(Selection, SetMembersInTheSetsOrder) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG", "TTTT"}, {"one", "two", "three", "four"});
  test::AddSet(ad, "Mixed", {4, 2});
  SelectOneSet(ad, 1);
  EXPECT_EQ(ad.SelCount1, 2);
  EXPECT_EQ(ad.SelMatrix1.at(1, 1), 'T');
  EXPECT_EQ(ad.SelMatrix1.at(3, 2), 'C');
  EXPECT_EQ(ad.SelNames1, (std::vector<std::string>{"", FixedName("four"), FixedName("two")}));
  EXPECT_EQ(ad.SelSeqNumbers1, (std::vector<int32_t>{0, 4, 2}));
}

TEST(Selection, SetListingAnExcludedSequenceKeepsItAndTheSelectionSkipsIt) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG", "TTTT"});
  test::AddSet(ad, "Three", {1, 2, 3});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  // The set still lists sequence 2.
  EXPECT_EQ(ad.SequenceSets[1].max(), 3.0);
  EXPECT_EQ(ad.SequenceSets[1].secuencia(2), 2.0);
  SelectOneSet(ad, 1);
  EXPECT_EQ(ad.SelCount1, 2);
  EXPECT_EQ(ad.SelSeqNumbers1, (std::vector<int32_t>{0, 1, 3}));
  EXPECT_EQ(ad.SelMatrix1.at(1, 2), 'G');
  EXPECT_EQ(ad.SelOutCount, 2);
}

TEST(Selection, TwoSetsMayShareASequence) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {1, 2});
  test::AddSet(ad, "Right", {2, 3});
  SelectTwoSets(ad, 1, 2);
  EXPECT_EQ(ad.SelSet1, 1);
  EXPECT_EQ(ad.SelSet2, 2);
  EXPECT_EQ(ad.SelCount1, 2);
  EXPECT_EQ(ad.SelCount2, 2);
  EXPECT_EQ(ad.SelMatrix1.at(1, 2), 'C');
  EXPECT_EQ(ad.SelMatrix2.at(1, 1), 'C');
  EXPECT_EQ(ad.SelNames2[2], FixedName("seq3"));
}

TEST(Selection, TwoSetsWithAllIncludedAsSecond) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {1});
  SelectTwoSets(ad, 1, 0);
  EXPECT_EQ(ad.SelCount1, 1);
  EXPECT_EQ(ad.SelCount2, 3);
  EXPECT_TRUE(ad.SelMatrix2.shares_cells_with(ad.IncMatrix));
}

TEST(Selection, FirstSetOnlyAndThirdSet) {
  ActiveData ad = MakeAlignment({"AAAA", "CCCC", "GGGG"});
  test::AddSet(ad, "Left", {3});
  SelectFirstSetOnly(ad, 1);
  EXPECT_EQ(ad.SelCount1, 1);
  EXPECT_EQ(ad.SelMatrix1.at(4, 1), 'G');
  SelectThirdSet(ad, 1);
  EXPECT_EQ(ad.SelSet3, 1);
  EXPECT_EQ(ad.SelCount3, 1);
  EXPECT_EQ(ad.SelMatrix3.at(2, 1), 'G');
  EXPECT_EQ(ad.SelNames3[1], FixedName("seq3"));
  SelectThirdSet(ad, 0);
  EXPECT_EQ(ad.SelCount3, 3);
}

TEST(Selection, ASetIndexThatNamesNoSetSelectsNothing) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  SelectOneSet(ad, 5);
  EXPECT_EQ(ad.SelCount1, 0);
  EXPECT_EQ(ad.SelOutCount, 0);
  EXPECT_NE(MinimumSequences(2, ad.SelOutCount), 0);
}

}  // namespace
}  // namespace ovelt

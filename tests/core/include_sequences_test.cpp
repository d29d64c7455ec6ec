#include "core/include_sequences.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(IncludeSequences, AllUntickedIsRefusedAndNothingChanges) {
  ActiveData ad = MakeAlignment({"AC", "AG", "TG"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  const std::vector<bool> none(4, false);
  const auto message = IncludeSequences(ad, none, 2);
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(*message, "The active data file must contain at least one sequence.");
  EXPECT_EQ(ad.NumSeqs, 2);
  EXPECT_EQ(ad.SeqIncluded, (std::vector<bool>{false, true, true, false}));
  EXPECT_EQ(ad.GapsInSets, 1);
  EXPECT_EQ(ad.IncMatrix.seqs(), 2);
}

TEST(IncludeSequences, ExcludingRebuildsTheIncludedLayerInFileOrder) {
  ActiveData ad = MakeAlignment({"AAA", "CCC", "GGG", "TTT"}, {"a", "b", "c", "d"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {1, 3}), 1).has_value());
  EXPECT_EQ(ad.NumSeqs, 2);
  EXPECT_EQ(ad.TotalSeqs, 4);
  EXPECT_EQ(ad.IncMatrix.seqs(), 2);
  EXPECT_EQ(ad.IncMatrix.at(1, 1), 'C');
  EXPECT_EQ(ad.IncMatrix.at(3, 2), 'T');
  EXPECT_EQ(ad.IncNames, (std::vector<std::string>{"", FixedName("b"), FixedName("d")}));
  EXPECT_FALSE(ad.IncMatrix.shares_cells_with(ad.RawMatrix));
  // The file layer is untouched.
  EXPECT_EQ(ad.RawMatrix.seqs(), 4);
  EXPECT_EQ(ad.RawSiteClass[1], kFourVariants);
  EXPECT_EQ(ad.SiteClass[1], kSingletonSite);
}

TEST(IncludeSequences, IncludingAllSharesTheFileCellsAgain) {
  ActiveData ad = MakeAlignment({"AC", "AG", "TG"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {}), 1).has_value());
  EXPECT_EQ(ad.NumSeqs, 3);
  EXPECT_TRUE(ad.IncMatrix.shares_cells_with(ad.RawMatrix));
  EXPECT_EQ(ad.IncNames, ad.RawNames);
}

TEST(IncludeSequences, GapOfAnExcludedSequenceNoLongerMakesClass5) {
  // Site 1: A, T, "-". With sequence 3 excluded the site is A/T again, class 1.
  ActiveData ad = MakeAlignment({"AG", "TG", "-G"});
  ASSERT_EQ(ad.SiteClass[1], kGapOrMissing);
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  EXPECT_EQ(ad.SiteClass[1], kSingletonSite);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 1.0);
}

TEST(IncludeSequences, GapsInSets2KeepsTheFilesClass5) {
  ActiveData ad = MakeAlignment({"AG", "TG", "-G"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 2).has_value());
  EXPECT_EQ(ad.GapsInSets, 2);
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 0.0);
  EXPECT_EQ(ad.SiteClass[2], kMonomorphic);
}

TEST(IncludeSequences, ChangingOnlyGapsInSetsReclassifies) {
  ActiveData ad = MakeAlignment({"AG", "TG", "-G"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 2).has_value());
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
}

TEST(IncludeSequences, CodingTablesFollowTheFirstIncludedSequence) {
  ActiveData ad = MakeAlignment({"ATG", "TGG"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 3, 1));
  LeaveForm14(ad, true);
  EXPECT_EQ(ad.CodingFlag[1], "1M");  // ATG Met
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {1}), 1).has_value());
  EXPECT_EQ(ad.CodingFlag[1], "1T");  // TGG Trp
  EXPECT_EQ(ad.CodingFlag[2], "1r");
  EXPECT_EQ(ad.CodingFlag[3], "1p");
}

TEST(IncludeSequences, ShortTickListCountsMissingEntriesAsUnticked) {
  ActiveData ad = MakeAlignment({"AC", "AG", "TG"});
  ASSERT_FALSE(IncludeSequences(ad, std::vector<bool>{false, true}, 1).has_value());
  EXPECT_EQ(ad.NumSeqs, 1);
  EXPECT_EQ(ad.SeqIncluded, (std::vector<bool>{false, true, false, false}));
}

}  // namespace
}  // namespace ovelt

#include "core/gap_settings.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(Form17, FacesOfTheThreeCommands) {
  const Form17Face window = Form17FaceFor(101);
  EXPECT_EQ(window.title, "Sliding Window Options");
  EXPECT_EQ(window.frame, "Gaps in Sliding Window");
  EXPECT_EQ(window.choice1, "* Sites with alignment gaps are considered.");
  EXPECT_EQ(window.choice2,
            "Sites with alignment gaps are not considered in the length of the windows (i.e., all "
            "windows have the same net number of nucleotides).");
  const Form17Face mutations = Form17FaceFor(102);
  EXPECT_EQ(mutations.title, "Segregating Sites / Number of Mutations");
  EXPECT_EQ(mutations.frame, "Nucleotide Substitutions Considered");
  EXPECT_EQ(mutations.choice1, "Use the total number of segregating sites");
  EXPECT_EQ(mutations.choice2, "Use the total number of mutations");
  const Form17Face sets = Form17FaceFor(103);
  EXPECT_EQ(sets.title, "Gaps in Sequence Sets");
  EXPECT_EQ(sets.frame, "Gaps/Missing Info. in Sequence Sets");
  EXPECT_EQ(sets.choice1,
            "Sites with alignment gaps are excluded if they are present in the active subset");
  EXPECT_EQ(sets.choice2,
            "Sites with alignment gaps in the complete data file are excluded in all subsets");
  EXPECT_EQ(Form17FaceFor(2).title, "");
}

TEST(Form17, ChoicesWriteTheirSettings) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  EXPECT_EQ(Form17CurrentChoice(ad, 101), 2);  // defaults: gaps not counted in windows,
  EXPECT_EQ(Form17CurrentChoice(ad, 102), 1);  // segregating sites,
  EXPECT_EQ(Form17CurrentChoice(ad, 103), 1);  // gaps only within the subset
  ApplyForm17(ad, 101, 1);
  EXPECT_TRUE(ad.GapsInWindow);
  ApplyForm17(ad, 102, 2);
  EXPECT_TRUE(ad.UseMutations);
  ApplyForm17(ad, 103, 2);
  EXPECT_EQ(ad.GapsInSets, 2);
  EXPECT_EQ(Form17CurrentChoice(ad, 101), 1);
  EXPECT_EQ(Form17CurrentChoice(ad, 102), 2);
  EXPECT_EQ(Form17CurrentChoice(ad, 103), 2);
  ApplyForm17(ad, 101, 2);
  ApplyForm17(ad, 102, 1);
  ApplyForm17(ad, 103, 1);
  EXPECT_FALSE(ad.GapsInWindow);
  EXPECT_FALSE(ad.UseMutations);
  EXPECT_EQ(ad.GapsInSets, 1);
}

TEST(Form17, AChoiceOutsideOneAndTwoChangesNothing) {
  ActiveData ad = MakeAlignment({"AC", "AG"});
  ApplyForm17(ad, 101, 0);
  ApplyForm17(ad, 102, 3);
  ApplyForm17(ad, 103, 7);
  EXPECT_FALSE(ad.GapsInWindow);
  EXPECT_FALSE(ad.UseMutations);
  EXPECT_EQ(ad.GapsInSets, 1);
}

TEST(Form17, GapsInSetsChangeWithExcludedSequencesReclassifies) {
  // Site 1 has its gap in sequence 3, which is excluded.
  ActiveData ad = MakeAlignment({"AC", "TC", "-C"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  ASSERT_EQ(ad.SiteClass[1], kSingletonSite);
  ApplyForm17(ad, 103, 2);
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 0.0);  // no "-" among the included sequences
  ApplyForm17(ad, 103, 1);
  EXPECT_EQ(ad.SiteClass[1], kSingletonSite);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 1.0);
}

TEST(Form17, GapsInSetsChangeWithAllIncludedKeepsTheClasses) {
  ActiveData ad = MakeAlignment({"AC", "TC", "-C"});
  const auto before = ad.SiteClass;
  ApplyForm17(ad, 103, 2);
  EXPECT_EQ(ad.GapsInSets, 2);
  EXPECT_EQ(ad.SiteClass, before);
}

}  // namespace
}  // namespace ovelt

#include "shell/set_dialog_logic.h"

#include <gtest/gtest.h>

#include "core/alignment_fixture.h"
#include "core/set_name.h"

namespace ovelt {
namespace {

using test::AddSet;
using test::MakeAlignment;

ActiveData FiveSequences() { return MakeAlignment({"AC", "AC", "AG", "TG", "TG"}); }

TEST(DefineSetsSession, ANewSetTakesTheIncludedListAndReachesTheStoreOnlyOnApply) {
  ActiveData ad = FiveSequences();
  DefineSetsSession session(ad);
  EXPECT_EQ(session.Current(), 0);
  EXPECT_EQ(session.ExcludedList(), (std::vector<int32_t>{1, 2, 3, 4, 5}));
  session.Include({4, 2, 4, 9});  // 4 once; 9 is no file sequence
  EXPECT_EQ(session.IncludedList(), (std::vector<int32_t>{4, 2}));
  EXPECT_EQ(session.ExcludedList(), (std::vector<int32_t>{1, 3, 5}));
  EXPECT_FALSE(session.AddNew("North").has_value());
  EXPECT_EQ(session.Current(), 1);
  EXPECT_FALSE(session.Dirty());
  EXPECT_EQ(ad.SetCount(), 0);
  session.Apply(ad);
  ASSERT_EQ(ad.SetCount(), 1);
  EXPECT_EQ(ad.SequenceSets[1].nombre(), "North");
  EXPECT_EQ(ad.SequenceSets[1].active(), 1);
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{4.0, 2.0}));
}

TEST(DefineSetsSession, RefusedNamesLeaveTheCopyAsItWas) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  DefineSetsSession session(ad);
  session.Include({3});
  EXPECT_EQ(session.AddNew("Begin"), kInvalidSetName);
  EXPECT_EQ(session.AddNew("BEGIN"), kInvalidSetName);
  EXPECT_EQ(session.AddNew("2pop"), kInvalidSetName);
  EXPECT_EQ(session.AddNew("north"), kDuplicateSetName);
  EXPECT_EQ(session.AddNew(""), std::string());
  EXPECT_EQ(session.Work().count(), 1);
  EXPECT_EQ(session.Current(), 0);
}

TEST(DefineSetsSession, LeavingAChangedSetAsksToSaveIt) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  AddSet(ad, "South", {4, 5});
  DefineSetsSession session(ad);
  ASSERT_TRUE(session.Choose(1));
  EXPECT_EQ(session.IncludedList(), (std::vector<int32_t>{1, 2}));
  EXPECT_EQ(session.SaveButtonCaption(), "Modify");
  EXPECT_FALSE(session.SaveQuestion().has_value());
  session.Include({3});
  session.Exclude({1});
  EXPECT_EQ(session.SaveButtonCaption(), "Update the Sequence Set");
  EXPECT_EQ(session.SaveQuestion(), std::string("Update North"));
  const SetDialogMessage saved = session.SaveCurrent();
  EXPECT_EQ(saved.text, "North has been modified succesfully");
  EXPECT_EQ(saved.title, "Define Populations");
  EXPECT_FALSE(session.Dirty());
  ASSERT_TRUE(session.Choose(2));
  EXPECT_EQ(session.IncludedList(), (std::vector<int32_t>{4, 5}));
  EXPECT_FALSE(session.Choose(3));
  session.Apply(ad);
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{2.0, 3.0}));
}

TEST(DefineSetsSession, SavingTheNewSetEntryIsATransferError) {
  ActiveData ad = FiveSequences();
  DefineSetsSession session(ad);
  session.Include({1});
  const SetDialogMessage message = session.SaveCurrent();
  EXPECT_EQ(message.text, "Could not transfer the information");
  EXPECT_EQ(message.title, "Ovelt");
}

TEST(DefineSetsSession, RenameAndRemoveKeepTheOtherSets) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  AddSet(ad, "South", {4, 5});
  AddSet(ad, "East", {3});
  DefineSetsSession session(ad);
  EXPECT_EQ(session.Rename(2, "north"), kDuplicateSetName);
  EXPECT_EQ(session.Rename(2, "end"), kInvalidSetName);
  EXPECT_FALSE(session.Rename(2, "SOUTH").has_value());  // its own name in another case
  ASSERT_TRUE(session.Choose(3));
  EXPECT_EQ(session.RemoveQuestion(1), "Remove the Sequence Set North ?");
  EXPECT_EQ(session.RemoveQuestion(4), "");
  EXPECT_TRUE(session.Remove(1));
  EXPECT_EQ(session.Current(), 2);  // East moved up one
  EXPECT_FALSE(session.Remove(3));
  session.Apply(ad);
  ASSERT_EQ(ad.SetCount(), 2);
  EXPECT_EQ(ad.SequenceSets[1].nombre(), "SOUTH");
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{4.0, 5.0}));
  EXPECT_EQ(ad.SequenceSets[2].nombre(), "East");
}

TEST(DefineSetsSession, ASetWithAnExcludedSequenceKeepsIt) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  ad.SeqIncluded[2] = false;
  DefineSetsSession session(ad);
  session.Choose(1);
  EXPECT_EQ(session.IncludedList(), (std::vector<int32_t>{1, 2}));
  EXPECT_EQ(SequenceListEntry(ad, 2), "seq2                   (E)");
  session.Apply(ad);
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{1.0, 2.0}));
}

TEST(ActivePopulationsSession, FlipsActiveFlagsOnConfirm) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  AddSet(ad, "South", {4, 5});
  AddSet(ad, "East", {3});
  ad.SequenceSets[3].activePop(0);
  ActivePopulationsSession session(ad);
  EXPECT_EQ(session.IncludedPopulations(), (std::vector<int32_t>{1, 2}));
  EXPECT_EQ(session.ExcludedPopulations(), (std::vector<int32_t>{3}));
  session.Include({3, 7});
  session.Exclude({1});
  EXPECT_EQ(ad.SequenceSets[1].active(), 1);
  EXPECT_FALSE(session.Confirm(ad).has_value());
  EXPECT_EQ(ad.SequenceSets[1].active(), 0);
  EXPECT_EQ(ad.SequenceSets[2].active(), 1);
  EXPECT_EQ(ad.SequenceSets[3].active(), 1);
}

TEST(ActivePopulationsSession, GeneFlowNeedsTwoActiveSetsWithIncludedSequences) {
  ActiveData ad = FiveSequences();
  AddSet(ad, "North", {1, 2});
  AddSet(ad, "South", {4, 5});
  AddSet(ad, "East", {3});
  ad.SeqIncluded[3] = false;  // East holds no included sequence
  ad.Analysis = 28;
  ActivePopulationsSession session(ad);
  session.Exclude({2});
  EXPECT_EQ(session.Confirm(ad),
            std::string("There are less than 2 active populations with included sequences. "
                        "Can't compute the Gene Flow between/among populations."));
  EXPECT_EQ(ad.SequenceSets[2].active(), 1);  // untouched
  ad.Analysis = 0;  // outside the gene flow command the same choice is taken
  EXPECT_FALSE(session.Confirm(ad).has_value());
  EXPECT_EQ(ad.SequenceSets[2].active(), 0);
}

}  // namespace
}  // namespace ovelt

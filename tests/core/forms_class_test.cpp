#include "core/forms_class.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"
#include "core/active_sets.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(FormsClass, WorkingCopyReachesTheStoreOnlyOnOk) {
  ActiveData ad = MakeAlignment({"A", "C", "G", "T"});
  test::AddSet(ad, "First", {1, 2});
  forms_class work;
  work.initValues(ad.SequenceSets);
  ASSERT_EQ(work.count(), 1);
  EXPECT_EQ(work.copyToList(1), (std::vector<int32_t>{1, 2}));

  EXPECT_FALSE(work.newPoblation("Second", {3, 4}).has_value());
  EXPECT_TRUE(work.copyFromList(1, {2}));
  EXPECT_EQ(ad.SetCount(), 1);  // nothing written yet
  EXPECT_EQ(ad.SequenceSets[1].max(), 2.0);

  work.setValues(ad.SequenceSets);
  ASSERT_EQ(ad.SetCount(), 2);
  EXPECT_EQ(ad.SequenceSets[1].nombre(), "First");
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{2.0}));
  EXPECT_EQ(ad.SequenceSets[2].nombre(), "Second");
  EXPECT_EQ(ad.SequenceSets[2].active(), 1);
  EXPECT_EQ(ad.SequenceSets[2].members(), (std::vector<double>{3.0, 4.0}));
}

TEST(FormsClass, NewSetNamesAreChecked) {
  forms_class work;
  EXPECT_FALSE(work.newPoblation("Pop", {1}).has_value());
  EXPECT_EQ(work.newPoblation("pop", {2}), kDuplicateSetName);
  EXPECT_EQ(work.newPoblation("Begin", {2}), kInvalidSetName);
  EXPECT_EQ(work.newPoblation("", {2}), "");
  EXPECT_EQ(work.count(), 1);
}

TEST(FormsClass, ComboListLookupAndModification) {
  forms_class work;
  ASSERT_FALSE(work.newPoblation("Africa", {1, 2}).has_value());
  ASSERT_FALSE(work.newPoblation("Europe", {3}).has_value());
  EXPECT_EQ(work.copyToComboBox(),
            (std::vector<std::string>{"New Sequence Set", "Africa", "Europe"}));
  EXPECT_EQ(work.Lookup_Poblation("Europe"), 2);
  EXPECT_EQ(work.Lookup_Poblation("Asia"), 0);
  EXPECT_TRUE(work.IsModified(1, {1}));
  EXPECT_FALSE(work.IsModified(1, {1, 2}));
  EXPECT_FALSE(work.copyFromList(3, {1}));
  EXPECT_THROW((void)work.record(3), std::out_of_range);
  EXPECT_EQ(SetModifiedMessage("Africa"), "Africa has been modified succesfully");
  EXPECT_EQ(UpdateSetCaption("Africa"), "Update Africa");
}

TEST(FormsClass, ActiveFlagsFromThePopulationsLists) {
  forms_class work;
  ASSERT_FALSE(work.newPoblation("A1", {1}).has_value());
  ASSERT_FALSE(work.newPoblation("A2", {2}).has_value());
  ASSERT_FALSE(work.newPoblation("A3", {3}).has_value());
  EXPECT_TRUE(work.activeFromList({false, true, false, true}));
  EXPECT_EQ(work.copyToListPob(true), (std::vector<int32_t>{1, 3}));
  EXPECT_EQ(work.copyToListPob(false), (std::vector<int32_t>{2}));
  EXPECT_FALSE(work.activeFromList({false, true}));  // wrong count: refused, nothing changes
  EXPECT_EQ(work.record(2).active, 0);
}

TEST(FormsClass, ExcludedSequencesAreMarkedInTheLists) {
  ActiveData ad = MakeAlignment({"A", "C"}, {"first", "second"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  EXPECT_EQ(SequenceListEntry(ad, 1), FixedName("first"));
  EXPECT_EQ(SequenceListEntry(ad, 2), FixedName("second") + "   (E)");
}

TEST(ActiveSets, CountOfActiveSetsWithIncludedSequences) {
  ActiveData ad = MakeAlignment({"A", "C", "G", "T"});
  test::AddSet(ad, "OnlyExcluded", {4});
  test::AddSet(ad, "Mixed", {3, 4});
  test::AddSet(ad, "Inactive", {1});
  test::AddSet(ad, "Plain", {1, 2});
  ad.SequenceSets[3].activePop(0);
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {4}), 1).has_value());
  EXPECT_EQ(NumeroNetoPoblacionesIncluidas(ad), 2);  // Mixed and Plain
}

TEST(ActiveSets, GeneFlowNeedsTwoActiveSetsWithIncludedSequences) {
  ActiveData ad = MakeAlignment({"A", "C", "G", "T"});
  test::AddSet(ad, "One", {1});
  test::AddSet(ad, "Two", {2});
  forms_class work;
  work.initValues(ad.SequenceSets);
  ad.Analysis = 28;
  EXPECT_FALSE(CheckActivePopulations(ad, work).has_value());
  ASSERT_TRUE(work.activeFromList({false, true, false}));
  EXPECT_EQ(CheckActivePopulations(ad, work),
            "There are less than 2 active populations with included sequences. Can't compute "
            "the Gene Flow between/among populations.");
  // Outside the gene flow command the same choice is allowed.
  ad.Analysis = 0;
  EXPECT_FALSE(CheckActivePopulations(ad, work).has_value());
}

}  // namespace
}  // namespace ovelt

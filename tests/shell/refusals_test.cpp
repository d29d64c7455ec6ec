#include <gtest/gtest.h>

#include "core/sequence_sets.h"
#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

class Refusals : public ::testing::Test {
 protected:
  Refusals() { p.ProgramDir = dir.Path().string(); }

  // Opens a FASTA file of `n` sequences of 6 sites.
  Workbench& Open(int n) {
    std::string fasta;
    for (int i = 1; i <= n; ++i) fasta += ">s" + std::to_string(i) + "\nACGTA" + "ACGT"[i % 4] + "\n";
    path = dir.Write("data.fas", fasta);
    wb = std::make_unique<Workbench>(p);
    EXPECT_TRUE(wb->OpenPath(path));
    return *wb;
  }

  TempDir dir;
  ScriptedPlatform p;
  std::string path;
  std::unique_ptr<Workbench> wb;
};

TEST_F(Refusals, OneSequenceRefusesWhatNeedsMore) {
  Workbench& w = Open(1);
  EXPECT_FALSE(w.BeginCommand(2));
  EXPECT_EQ(w.Data().Analysis, 0);
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(p.Boxes[0].Text,
            "Only one sequence in the Data File. Can't compute DNA Polymorphism.\nInput data "
            "file: " + path);
  EXPECT_FALSE(w.BeginCommand(21));
  EXPECT_EQ(p.LastBox(),
            "Only one sequence in the Data File. Can't create a file with the polymorphic "
            "sites\nInput data file: " + path);
  EXPECT_FALSE(w.BeginCommand(24));
  EXPECT_EQ(p.LastBox(),
            "Only one sequence in the Data File. Can't analyze the Ovelt Workbench.\nInput data "
            "file: " + path);
  // Commands without a check start.
  EXPECT_TRUE(w.BeginCommand(1));
  EXPECT_EQ(w.Data().Analysis, 1);
  w.EndCommand();
  EXPECT_EQ(w.Data().Analysis, 0);
}

TEST_F(Refusals, FourSequencesAreNeededForTheNeutralityTests) {
  Workbench& w = Open(3);
  EXPECT_FALSE(w.BeginCommand(5));
  EXPECT_EQ(p.LastBox(),
            "Four or more sequences are needed to compute the Tajima's Test.\nInput data file: " +
                path);
  EXPECT_FALSE(w.BeginCommand(11));
  EXPECT_EQ(p.LastBox(),
            "Four or more sequences are needed to compute the Fu and Li's Tests.\nInput data "
            "file: " + path);
  EXPECT_TRUE(w.BeginCommand(2));
}

TEST_F(Refusals, TwoSetsQuestionCancelledEndsTheCommand) {
  Workbench& w = Open(4);
  p.Answers.push_back(MsgAnswer::kNo);
  EXPECT_FALSE(w.BeginCommand(1003));
  EXPECT_EQ(w.Data().Analysis, 0);
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Buttons, MsgButtons::kYesNo);
  EXPECT_EQ(p.Boxes[0].Text,
            "No Sequence Sets (Populations) defined !\nThe present analysis requires, at least, "
            "the definition of 2 Sets of Sequences. Do you want to define them?");
  EXPECT_TRUE(p.DialogsShown.empty());
}

TEST_F(Refusals, TwoSetsYesOpensTheSetsDialogAndPassesWhenTwoSetsExist) {
  Workbench& w = Open(4);
  ASSERT_FALSE(AddSequenceSet(w.Data(), "North", {1, 2}).has_value());
  p.Answers.push_back(MsgAnswer::kYes);
  p.OnDialog = [&w](const std::string& form) {
    EXPECT_EQ(form, "dlgDefPop");
    return !AddSequenceSet(w.Data(), "South", {3, 4}).has_value();
  };
  EXPECT_TRUE(w.BeginCommand(1006));
  EXPECT_EQ(w.Data().Analysis, 1006);
  EXPECT_EQ(p.Boxes[0].Text,
            "Only one Sequence Set (Population) defined !\nThe present analysis requires, at "
            "least, the definition of 2 Sets of Sequences. Do you want to define them?");
}

TEST_F(Refusals, McDonaldKreitmanAsksForRegionThenSetsWithItsOwnWords) {
  Workbench& w = Open(4);
  p.Answers = {MsgAnswer::kYes, MsgAnswer::kNo};
  p.OnDialog = [&w](const std::string& form) {
    if (form == "Form14") w.Data().Format.CodingAssigned = 1;  // a region was defined
    return true;
  };
  EXPECT_FALSE(w.BeginCommand(1014));
  ASSERT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[0].Text,
            "No Protein Coding Region Defined !\nDo you want to define the Protein Coding Region "
            "now ?");
  EXPECT_EQ(p.Boxes[1].Text,
            "No Sequence Sets (Populations) defined !\nThe present analysis requires the "
            "definition of 2 Sets of Sequences. Each Set must include information of each "
            "species.\nDo you want to define the Sequences Sets now ?");
  EXPECT_EQ(w.Data().Analysis, 0);
}

TEST_F(Refusals, CodingNoticeGoesOnWithOkAndStopsWithCancel) {
  Workbench& w = Open(4);
  p.Answers.push_back(MsgAnswer::kOk);
  EXPECT_TRUE(w.BeginCommand(8));
  EXPECT_EQ(p.LastBox(),
            "No Protein Coding region defined. All sites will be considered as noncoding "
            "positions.\nInput data file: " +
                w.Data().FilePath);
  EXPECT_EQ(p.Boxes.back().Buttons, MsgButtons::kOkCancel);
  w.EndCommand();
  p.Answers.push_back(MsgAnswer::kCancel);
  EXPECT_FALSE(w.BeginCommand(8));
  EXPECT_EQ(w.Data().Analysis, 0);
}

TEST_F(Refusals, CodonUsageRefusesUnlessARegionIsThenDefined) {
  Workbench& w = Open(4);
  p.Answers.push_back(MsgAnswer::kYes);
  EXPECT_FALSE(w.BeginCommand(23));  // the dialog was left without a region
  EXPECT_EQ(p.DialogsShown, std::vector<std::string>{"Form14"});
  p.Answers.push_back(MsgAnswer::kYes);
  p.OnDialog = [&w](const std::string&) {
    w.Data().Format.CodingAssigned = 1;
    return true;
  };
  EXPECT_TRUE(w.BeginCommand(23));
}

TEST_F(Refusals, OneSetCheck) {
  Workbench& w = Open(4);
  EXPECT_FALSE(w.BeginCommand(1016));
  EXPECT_EQ(p.Boxes[0].Text,
            "No Sequence Sets (Populations) defined !\nThe present analysis requires, at least, "
            "one Set of Sequences.\nDo you want to define the Sequences Sets now ?");
}

TEST_F(Refusals, GeneFlowCountsActiveSetsWithIncludedSequences) {
  Workbench& w = Open(4);
  ASSERT_FALSE(AddSequenceSet(w.Data(), "A", {1, 2}).has_value());
  ASSERT_FALSE(AddSequenceSet(w.Data(), "B", {3, 4}).has_value());
  w.Data().SequenceSets[2].activePop(0);
  EXPECT_FALSE(w.BeginCommand(28));
  EXPECT_EQ(p.LastBox(),
            "There is only 1 active populations with included sequences. Can't compute the Gene "
            "Flow between/among populations.");
  w.Data().SequenceSets[1].activePop(0);
  EXPECT_FALSE(w.BeginCommand(28));
  EXPECT_EQ(p.LastBox(),
            "There are 0 active populations with included sequences. Can't compute the Gene "
            "Flow between/among populations.");
  w.Data().SequenceSets[1].activePop(1);
  w.Data().SequenceSets[2].activePop(1);
  EXPECT_TRUE(w.BeginCommand(28));
}

TEST_F(Refusals, PreferredCodonsNeedATableAndTwoSetsWithSequences) {
  Workbench& w = Open(4);
  w.Data().Format.CodingAssigned = 1;
  w.Data().PrefTableName = "UnKnown";
  EXPECT_FALSE(w.BeginCommand(1029));
  EXPECT_EQ(p.LastBox(),
            "There is no any Preferred/Unpreferred Codons Table assigned!\nDo you want to assign "
            "the table now?");
  w.Data().PrefTableName = "Drosophila_melanogaster";
  ASSERT_FALSE(AddSequenceSet(w.Data(), "A", {1, 2}).has_value());
  ASSERT_FALSE(AddSequenceSet(w.Data(), "B", {3, 4}).has_value());
  ASSERT_TRUE(w.IncludeSequences({false, true, true, false, false}, 1));
  EXPECT_FALSE(w.BeginCommand(1029));
  EXPECT_EQ(p.LastBox(),
            "There are less than 2 populations with included sequences. Can't analyse the data.");
}

TEST_F(Refusals, DisabledCommandsDoNotStart) {
  ScriptedPlatform q;
  Workbench w(q);
  EXPECT_FALSE(w.BeginCommand(2));  // no file open
  EXPECT_TRUE(q.Boxes.empty());
  EXPECT_TRUE(w.BeginCommand(41));  // tools need no data
  w.EndCommand();
  EXPECT_TRUE(w.BeginCommand(32));  // concatenation needs no open file
  w.EndCommand();
  Workbench& opened = Open(4);
  EXPECT_FALSE(opened.BeginCommand(32));
}

}  // namespace
}  // namespace ovelt

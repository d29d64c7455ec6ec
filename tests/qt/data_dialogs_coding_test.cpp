#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "data_dialogs_fixture.h"
#include "ui/qt/coding_region_dialog.h"
#include "ui/qt/set_dialogs_handlers.h"

namespace ovelt::datadlg {
namespace {

using CodingRegionDialogs = DataDialogTest;

const char* const kDone = "The assignation has been successful done.\nDo you want to assign more regions?";

TEST_F(CodingRegionDialogs, MenuEntryFollowsTheOpenFile) {
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuAsignarCodones_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "&Assign Coding Regions...");
  EXPECT_TRUE(action->isVisible());
  EXPECT_FALSE(action->isEnabled());
  Open(window, ExampleFasta());
  EXPECT_TRUE(action->isEnabled());
}

TEST_F(CodingRegionDialogs, AnInvalidRegionKeepsTheDialogOpen) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  bool stayed = false;
  OnNext<CodingRegionDialog>([&stayed](CodingRegionDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Protein Coding Regions ");
    EXPECT_EQ(dialog->From()->text(), "1");
    EXPECT_EQ(dialog->To()->text(), "900");
    bool last_shown = false;
    for (auto* label : dialog->findChildren<QLabel*>())
      if (label->text() == "Last nt. = 900") last_shown = true;
    EXPECT_TRUE(last_shown);
    dialog->To()->setText("901");
    dialog->Assign();
    dialog->To()->setText("");
    dialog->Assign();
    stayed = dialog->isVisible();
    dialog->reject();
  });
  window.Trigger("MenuAsignarCodones_Click");
  EXPECT_TRUE(stayed);
  ASSERT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[0].Text, " Invalid Selection ");
  EXPECT_EQ(p.Boxes[1].Text, " Invalid Selection ");
  EXPECT_EQ(window.Bench().Data().Format.CodingAssigned, -1);
}

TEST_F(CodingRegionDialogs, RegionsAreWrittenOnlyWhenTheUserLeavesWithOk) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  // First a coding region that is cancelled, then two regions that are kept.
  OnNext<CodingRegionDialog>([this](CodingRegionDialog* dialog) {
    p.Answers.push_back(MsgAnswer::kYes);  // assign more
    dialog->Assign();
    dialog->reject();
  });
  window.Trigger("MenuAsignarCodones_Click");
  EXPECT_EQ(window.Bench().Data().CodonPosition[1], 0);
  EXPECT_EQ(window.Bench().Data().Format.CodingAssigned, -1);

  auto* events = window.findChild<DataDialogEvents*>();
  ASSERT_NE(events, nullptr);
  int coding_changed = 0;
  QObject::connect(events, &DataDialogEvents::CodingChanged, [&coding_changed] { ++coding_changed; });
  p.Boxes.clear();
  OnNext<CodingRegionDialog>([this](CodingRegionDialog* dialog) {
    dialog->From()->setText("10");
    dialog->To()->setText("99");
    dialog->FirstPosition(2)->setChecked(true);
    p.Answers.push_back(MsgAnswer::kYes);  // assign more
    dialog->Assign();
    dialog->From()->setText(" 40 ");
    dialog->To()->setText("42");
    dialog->NonCoding()->setChecked(true);
    p.Answers.push_back(MsgAnswer::kNo);  // no more: leave
    dialog->Assign();
  });
  window.Trigger("MenuAsignarCodones_Click");
  ASSERT_GE(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[0].Text, kDone);
  EXPECT_EQ(p.Boxes[0].Buttons, MsgButtons::kYesNo);
  const ActiveData& d = window.Bench().Data();
  EXPECT_EQ(d.Format.CodingAssigned, 1);
  EXPECT_EQ(d.CodonPosition[9], 0);
  EXPECT_EQ(d.CodonPosition[10], 2);
  EXPECT_EQ(d.CodonPosition[11], 3);
  EXPECT_EQ(d.CodonPosition[12], 1);
  EXPECT_EQ(d.CodonPosition[40], 0);
  EXPECT_EQ(d.CodonPosition[42], 0);
  EXPECT_EQ(d.CodonPosition[43], (43 - 10 + 1) % 3 + 1);  // the frame goes on after the gap
  EXPECT_EQ(d.CodonPosition[100], 0);
  EXPECT_EQ(d.CodingFlag[9], "4n");
  EXPECT_EQ(coding_changed, 1);
  EXPECT_TRUE(std::find(p.StatusTexts.begin(), p.StatusTexts.end(),
                        "Processing Information...") != p.StatusTexts.end());
}

TEST_F(CodingRegionDialogs, AFinalStopCodonIsOfferedAsNoncoding) {
  // Two sequences whose last codon is TAA.
  const std::string file =
      dir.Write("stop.fas", ">a\nATGAAATTTGGGTAA\n>b\nATGAAATTCGGGTAA\n");
  MainWindow window(p);
  Open(window, file);
  OnNext<CodingRegionDialog>([](CodingRegionDialog* dialog) { dialog->Assign(); });  // 1..15
  p.Answers.push_back(MsgAnswer::kNo);   // no more regions: leave
  p.Answers.push_back(MsgAnswer::kYes);  // make the stop codon noncoding
  window.Trigger("MenuAsignarCodones_Click");
  ASSERT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[1].Text,
            "The last codon (sites: 13, 14, 15) is an stop codon. Stop codons should be assigned "
            "as a noncoding positions.\nDo you want that Ovelt assign this stop codon as a "
            "noncoding position ?");
  const ActiveData& d = window.Bench().Data();
  EXPECT_EQ(d.CodonPosition[12], 3);
  EXPECT_EQ(d.CodonPosition[13], 0);
  EXPECT_EQ(d.LastCodingSite, 12);
}

}  // namespace
}  // namespace ovelt::datadlg

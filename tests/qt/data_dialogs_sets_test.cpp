#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "data_dialogs_fixture.h"
#include "ui/qt/set_dialogs.h"

namespace ovelt::datadlg {
namespace {

// Selects the entries of `list` whose numbers are given.
void SelectNumbers(QListWidget* list, const std::vector<int>& numbers) {
  list->clearSelection();
  for (int row = 0; row < list->count(); ++row) {
    const int number = list->item(row)->data(Qt::UserRole).toInt();
    if (std::find(numbers.begin(), numbers.end(), number) != numbers.end())
      list->item(row)->setSelected(true);
  }
}

QPushButton* Button(QWidget* dialog, const QString& text) {
  for (auto* button : dialog->findChildren<QPushButton*>())
    if (button->text() == text) return button;
  return nullptr;
}

// Types `text` into the name box of the next DialogGF, as key strokes would, and presses OK.
void TypeNextSetName(const QString& text) {
  OnNext<SetNameDialog>([text](SetNameDialog* ask) {
    EXPECT_EQ(ask->findChild<QLabel*>()->text(), "Please write the Sequence Set name: ");
    ask->Field()->setText(text);
    emit ask->Field()->textEdited(text);
    ask->accept();
  });
}

using SetDialogs = DataDialogTest;

TEST_F(SetDialogs, MenuEntriesFollowTheOpenFile) {
  MainWindow window(p);
  for (const char* handler : {"MenuDefinePopulations_Click", "MenuActivarPopulations_Click"}) {
    QAction* action = window.ActionFor(handler);
    ASSERT_NE(action, nullptr) << handler;
    EXPECT_TRUE(action->isVisible()) << handler;
    EXPECT_FALSE(action->isEnabled()) << handler;
  }
  EXPECT_EQ(window.ActionFor("MenuDefinePopulations_Click")->text(), "&Define Sequence Sets...");
  EXPECT_EQ(window.ActionFor("MenuActivarPopulations_Click")->text(),
            "Include / &Exclude Populations...");
  Open(window, ExampleFasta());
  EXPECT_TRUE(window.ActionFor("MenuDefinePopulations_Click")->isEnabled());
  EXPECT_TRUE(window.ActionFor("MenuActivarPopulations_Click")->isEnabled());
  p.Answers.push_back(MsgAnswer::kYes);
  window.Trigger("del_Click");
  EXPECT_FALSE(window.ActionFor("MenuDefinePopulations_Click")->isEnabled());
}

TEST_F(SetDialogs, ANewSetIsNamedAndWrittenOnOk) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  OnNext<DefineSetsDialog>([](DefineSetsDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Define Sequence Sets");
    EXPECT_EQ(dialog->Sets()->itemText(0), "New Sequence Set");
    ASSERT_EQ(dialog->Lists()->Left()->count(), 12);
    EXPECT_EQ(dialog->Lists()->Left()->item(0)->text(), "seq1                ");
    SelectNumbers(dialog->Lists()->Left(), {5, 2, 9});
    Button(dialog, "Include sequence/s ")->click();
    EXPECT_EQ(dialog->Lists()->Right()->count(), 3);
    EXPECT_EQ(dialog->Lists()->Left()->count(), 9);
    TypeNextSetName("Begin");
    dialog->AddButton()->click();
    TypeNextSetName("north pop!");
    dialog->AddButton()->click();
    EXPECT_EQ(dialog->Sets()->currentText(), "north_pop");
    dialog->accept();
  });
  window.Trigger("MenuDefinePopulations_Click");
  ASSERT_GE(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Invalid sequence set name\nInvalid name, please enter another name");
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  const ActiveData& d = window.Bench().Data();
  ASSERT_EQ(d.SetCount(), 1);
  EXPECT_EQ(d.SequenceSets[1].nombre(), "north_pop");
  EXPECT_EQ(d.SequenceSets[1].active(), 1);
  // Members in list order: the selection is taken top to bottom, in file order.
  EXPECT_EQ(d.SequenceSets[1].members(), (std::vector<double>{2.0, 5.0, 9.0}));
}

TEST_F(SetDialogs, CancelLeavesTheSetsAsTheyWere) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  ASSERT_EQ(window.Bench().Data().SetCount(), 2);
  OnNext<DefineSetsDialog>([](DefineSetsDialog* dialog) {
    dialog->ChooseSet(1);
    SelectNumbers(dialog->Lists()->Right(), {2});
    Button(dialog, "Exclude sequence/s")->click();
    dialog->Lists()->Left()->selectAll();
    Button(dialog, "Include sequence/s ")->click();
    dialog->RemoveButton()->click();  // answered No: nothing queued
    dialog->reject();
  });
  window.Trigger("MenuDefinePopulations_Click");
  const ActiveData& d = window.Bench().Data();
  ASSERT_EQ(d.SetCount(), 2);
  EXPECT_EQ(d.SequenceSets[1].nombre(), "apes");
  EXPECT_EQ(d.SequenceSets[1].members(), (std::vector<double>{2.0, 3.0}));
  EXPECT_EQ(p.LastBox(), "Remove the Sequence Set apes ?");
}

TEST_F(SetDialogs, ChoosingAnotherSetOffersToSaveTheChange) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  p.Answers.push_back(MsgAnswer::kYes);  // "Update apes"
  OnNext<DefineSetsDialog>([](DefineSetsDialog* dialog) {
    ASSERT_EQ(dialog->Sets()->count(), 3);
    EXPECT_EQ(dialog->Sets()->itemText(1), "apes");
    dialog->ChooseSet(1);
    EXPECT_EQ(dialog->Lists()->Right()->count(), 2);
    EXPECT_EQ(dialog->SaveButton()->text(), "Modify");
    SelectNumbers(dialog->Lists()->Left(), {4});
    Button(dialog, "Include sequence/s ")->click();
    EXPECT_EQ(dialog->SaveButton()->text(), "Update the Sequence Set");
    dialog->ChooseSet(2);
    EXPECT_EQ(dialog->Lists()->Right()->count(), 2);
    dialog->accept();
  });
  window.Trigger("MenuDefinePopulations_Click");
  ASSERT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[0].Text, "Update apes");
  EXPECT_EQ(p.Boxes[0].Buttons, MsgButtons::kYesNo);
  EXPECT_EQ(p.Boxes[1].Text, "apes has been modified succesfully");
  EXPECT_EQ(p.Boxes[1].Title, "Define Populations");
  EXPECT_EQ(window.Bench().Data().SequenceSets[1].members(),
            (std::vector<double>{2.0, 3.0, 4.0}));
}

TEST_F(SetDialogs, RenameRefusesADuplicateAndRemoveDropsASet) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  OnNext<DefineSetsDialog>([this](DefineSetsDialog* dialog) {
    dialog->ChooseSet(2);
    TypeNextSetName("APES");
    dialog->RenameButton()->click();
    TypeNextSetName("outgroup");
    dialog->RenameButton()->click();
    dialog->ChooseSet(1);
    p.Answers.push_back(MsgAnswer::kYes);  // "Remove the Sequence Set apes ?"
    dialog->RemoveButton()->click();
    dialog->accept();
  });
  window.Trigger("MenuDefinePopulations_Click");
  EXPECT_EQ(p.Boxes[0].Text, "Can not create two Sequence Sets with the same name");
  const ActiveData& d = window.Bench().Data();
  ASSERT_EQ(d.SetCount(), 1);
  EXPECT_EQ(d.SequenceSets[1].nombre(), "outgroup");
  EXPECT_EQ(d.SequenceSets[1].members(), (std::vector<double>{1.0, 4.0}));
}

TEST_F(SetDialogs, ExcludedSequencesAreMarked) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  std::vector<bool> ticks{false, true, false, true, true};
  ASSERT_TRUE(window.Bench().IncludeSequences(ticks, 1));
  OnNext<DefineSetsDialog>([](DefineSetsDialog* dialog) {
    // The NEXUS name Pan_paniscus reads with a blank; names fill a field of 20 characters.
    EXPECT_EQ(dialog->Lists()->Left()->item(1)->text().toStdString(),
              "Pan paniscus" + std::string(8, ' ') + "   (E)");
    dialog->reject();
  });
  window.Trigger("MenuDefinePopulations_Click");
}

TEST_F(SetDialogs, PopulationsDialogFlipsTheActiveFlag) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  OnNext<ActivePopulationsDialog>([](ActivePopulationsDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Include/Exclude Populations");
    ASSERT_EQ(dialog->Lists()->Right()->count(), 2);
    EXPECT_EQ(dialog->Lists()->Left()->count(), 0);
    SelectNumbers(dialog->Lists()->Right(), {1});
    Button(dialog, "Exclude population/s")->click();
    EXPECT_EQ(dialog->Lists()->Left()->item(0)->text(), "apes");
    dialog->accept();
  });
  window.Trigger("MenuActivarPopulations_Click");
  const ActiveData& d = window.Bench().Data();
  EXPECT_EQ(d.SequenceSets[1].active(), 0);
  EXPECT_EQ(d.SequenceSets[2].active(), 1);
}

TEST_F(SetDialogs, PopulationsDialogStaysOpenDuringGeneFlowWithOneActiveSet) {
  MainWindow window(p);
  Open(window, NexusWithSets());
  window.Bench().Data().Analysis = 28;
  bool stayed = false;
  OnNext<ActivePopulationsDialog>([&stayed](ActivePopulationsDialog* dialog) {
    SelectNumbers(dialog->Lists()->Right(), {2});
    Button(dialog, "Exclude population/s")->click();
    dialog->accept();
    stayed = dialog->isVisible();
    dialog->reject();
  });
  window.Trigger("MenuActivarPopulations_Click");
  EXPECT_TRUE(stayed);
  EXPECT_EQ(p.LastBox(),
            "There are less than 2 active populations with included sequences. Can't compute "
            "the Gene Flow between/among populations.");
  EXPECT_EQ(window.Bench().Data().SequenceSets[2].active(), 1);
}

}  // namespace
}  // namespace ovelt::datadlg

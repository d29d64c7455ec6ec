#include <QGroupBox>
#include <QRadioButton>

#include "data_dialogs_fixture.h"
#include "ui/qt/format_dialog.h"
#include "ui/qt/set_dialogs_handlers.h"

namespace ovelt::datadlg {
namespace {

using FormatDialogs = DataDialogTest;

TEST_F(FormatDialogs, MenuEntryFollowsTheOpenFile) {
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuFormat_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "&Format...");
  EXPECT_FALSE(action->isEnabled());
  Open(window, ExampleFasta());
  EXPECT_TRUE(action->isEnabled());
}

TEST_F(FormatDialogs, OffersTheFileValuesAndCancelChangesNothing) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  OnNext<FormatDialog>([](FormatDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Nucleotide Sequence Format");
    QStringList frames;
    for (auto* box : dialog->findChildren<QGroupBox*>()) frames << box->title();
    EXPECT_EQ(frames, (QStringList{"Chromosomal Location", "Genomic State", "Nucleotide Sequence"}));
    EXPECT_TRUE(dialog->Location(0)->isChecked());
    EXPECT_EQ(dialog->Location(7)->text(), "Chloroplast");
    EXPECT_TRUE(dialog->State(0)->isChecked());
    EXPECT_TRUE(dialog->Type(0)->isChecked());
    dialog->Location(1)->setChecked(true);
    dialog->Type(1)->setChecked(true);
    dialog->reject();
  });
  window.Trigger("MenuFormat_Click");
  const FormatAttributes& f = window.Bench().Data().Format;
  EXPECT_EQ(f.ChromosomalLocation, 0);
  EXPECT_EQ(f.NucleotideType, 0);
  EXPECT_TRUE(p.Boxes.empty());
}

TEST_F(FormatDialogs, ADiploidMitochondrialGenomeIsConfirmedFirst) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  bool stayed = false;
  OnNext<FormatDialog>([this, &stayed](FormatDialog* dialog) {
    dialog->Location(6)->setChecked(true);
    dialog->accept();  // Cancel: nothing queued
    stayed = dialog->isVisible();
    p.Answers.push_back(MsgAnswer::kOk);
    dialog->accept();
  });
  window.Trigger("MenuFormat_Click");
  EXPECT_TRUE(stayed);
  ASSERT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(p.Boxes[0].Text,
            "Are you sure that the genome is Diploid ?\nInput data file: " + ExampleFasta());
  EXPECT_EQ(p.Boxes[0].Buttons, MsgButtons::kOkCancel);
  EXPECT_EQ(window.Bench().Data().Format.ChromosomalLocation, 6);
  EXPECT_EQ(window.Bench().Data().Format.GenomeState, 0);
}

TEST_F(FormatDialogs, ANewNucleotideTypeTellsTheViewer) {
  MainWindow window(p);
  Open(window, NexusWithSets());  // RNA
  ASSERT_EQ(window.Bench().Data().Format.NucleotideType, 1);
  int redraws = 0;
  QObject::connect(window.findChild<DataDialogEvents*>(), &DataDialogEvents::NucleotideTypeChanged,
                   [&redraws] { ++redraws; });
  OnNext<FormatDialog>([](FormatDialog* dialog) {
    EXPECT_TRUE(dialog->Type(1)->isChecked());
    dialog->State(1)->setChecked(true);
    dialog->accept();
  });
  window.Trigger("MenuFormat_Click");
  EXPECT_EQ(redraws, 0);
  EXPECT_EQ(window.Bench().Data().Format.GenomeState, 1);
  OnNext<FormatDialog>([](FormatDialog* dialog) {
    dialog->Type(0)->setChecked(true);
    dialog->accept();
  });
  window.Trigger("MenuFormat_Click");
  EXPECT_EQ(redraws, 1);
  EXPECT_EQ(window.Bench().Data().Format.NucleotideType, 0);
}

}  // namespace
}  // namespace ovelt::datadlg

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "data_dialogs_fixture.h"
#include "ui/qt/genetic_code_dialog.h"

namespace ovelt::datadlg {
namespace {

using GeneticCodeDialogs = DataDialogTest;

TEST_F(GeneticCodeDialogs, MenuEntryFollowsTheOpenFile) {
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuGeneticCode_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "Assign Genetic &Code...");
  EXPECT_FALSE(action->isEnabled());
  Open(window, NexusWithSets());
  EXPECT_TRUE(action->isEnabled());
}

TEST_F(GeneticCodeDialogs, TheGridFollowsTheChoiceAndCancelKeepsTheCode) {
  MainWindow window(p);
  Open(window, ExampleFasta());
  OnNext<GeneticCodeDialog>([](GeneticCodeDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Genetic Code");
    EXPECT_EQ(dialog->findChild<QGroupBox*>()->title(), "Genetic Code for: example.fas");
    ASSERT_EQ(dialog->Codes()->count(), 10);
    EXPECT_EQ(dialog->Codes()->currentText(), "Nuclear Universal");
    EXPECT_EQ(dialog->Cell(1, 1, 1), "UUU  Phe");
    EXPECT_EQ(dialog->Cell(1, 4, 3), "UGA  Stop");
    EXPECT_EQ(dialog->Cell(3, 4, 3), "AGA  Arg");
    dialog->Codes()->setCurrentIndex(1);  // mtDNA Mammals
    EXPECT_EQ(dialog->Cell(1, 4, 3), "UGA  Trp");
    EXPECT_EQ(dialog->Cell(3, 4, 3), "AGA  Stop");
    EXPECT_EQ(dialog->Cell(3, 1, 3), "AUA  Met");
    dialog->reject();
  });
  window.Trigger("MenuGeneticCode_Click");
  EXPECT_EQ(window.Bench().Data().Format.GeneticCodeIndex, 1);
  EXPECT_EQ(window.Bench().Data().GeneticCode.Translate(15), '*');
}

TEST_F(GeneticCodeDialogs, OkStoresTheCodeAndRebuildsTheCodingTables) {
  const std::string file = dir.Write("tga.fas", ">a\nATGTGAGGG\n>b\nATGTGAGGA\n");
  MainWindow window(p);
  Open(window, file);
  // OK of the coding dialog without an assigned region changes nothing.
  OnNextDialog([](QDialog* dialog) { dialog->accept(); });
  window.Trigger("MenuAsignarCodones_Click");
  ASSERT_EQ(window.Bench().Data().Format.CodingAssigned, -1);
  // The whole file (1..9, first position 1) becomes coding.
  p.Answers.push_back(MsgAnswer::kNo);  // no more regions
  OnNextDialog([](QDialog* dialog) {
    for (auto* button : dialog->findChildren<QPushButton*>())
      if (button->text() == "Assign") button->click();
  });
  window.Trigger("MenuAsignarCodones_Click");
  ASSERT_EQ(window.Bench().Data().Format.CodingAssigned, 1);
  EXPECT_EQ(window.Bench().Data().CodingFlag[4], "2S");  // TGA: Stop under the universal code

  OnNext<GeneticCodeDialog>([](GeneticCodeDialog* dialog) {
    dialog->Codes()->setCurrentIndex(1);
    dialog->accept();
  });
  window.Trigger("MenuGeneticCode_Click");
  const ActiveData& d = window.Bench().Data();
  EXPECT_EQ(d.Format.GeneticCodeIndex, 2);
  EXPECT_EQ(d.GeneticCode.Translate(15), 'W');
  EXPECT_EQ(d.CodingFlag[4], "2T");  // TGA: Trp in mammal mitochondria
  EXPECT_TRUE(std::find(p.StatusTexts.begin(), p.StatusTexts.end(),
                        "Processing Information...") != p.StatusTexts.end());
}

}  // namespace
}  // namespace ovelt::datadlg

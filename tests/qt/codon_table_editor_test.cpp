#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <functional>

#include "shell/pref_editor.h"
#include "formats/ovp_file.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/codon_table_editor.h"
#include "ui/qt/main_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

// Codon indices, T, C, A, G order: (a-1)*16 + (b-1)*4 + c.
constexpr int kTTT = 1;
constexpr int kTTC = 2;
constexpr int kTAA = 11;
constexpr int kATG = 36;
constexpr int kGGC = 62;  // Gly, four codons

void OnNextDialog(std::function<void(QDialog*)> act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(dialog);
  });
}

class CodonTableEditorTest : public ::testing::Test {
 protected:
  CodonTableEditorTest() { p.ProgramDir = dir.Path().string(); }

  // Clicks the grid cell of codon `index` as the mouse would.
  static void ClickCell(CodonTableEditor& editor, int index) {
    const auto [row, column] = CodonTableEditor::CellOf(index);
    emit editor.Grid()->cellClicked(row, column);
  }
  static std::string CellText(CodonTableEditor& editor, int index) {
    const auto [row, column] = CodonTableEditor::CellOf(index);
    return editor.Grid()->item(row, column)->text().toStdString();
  }

  TempDir dir;
  ScriptedPlatform p;
  ActiveData data;
};

TEST_F(CodonTableEditorTest, TheGridHoldsTheSixtyFourCodonsInBlocks) {
  data.PrefTableName = "Drosophila_melanogaster";
  CodonTableEditor editor(data, p);
  ASSERT_EQ(editor.Grid()->rowCount(), 16);
  ASSERT_EQ(editor.Grid()->columnCount(), 4);
  // The first block (T, T): TTT, TTC, TTA, TTG down the first column.
  EXPECT_EQ(CellText(editor, 1).substr(0, 3), "TTT");
  EXPECT_EQ(editor.Grid()->item(1, 0)->text().left(3).toStdString(), "TTC");
  EXPECT_EQ(editor.Grid()->item(0, 1)->text().left(3).toStdString(), "TCT");
  EXPECT_EQ(editor.Grid()->item(15, 3)->text().left(3).toStdString(), "GGG");
  EXPECT_EQ(CellText(editor, kTTC), "TTC  F P");
  EXPECT_EQ(CellText(editor, kTAA), "TAA  * *");
  EXPECT_EQ(CellText(editor, kATG), "ATG  M -");
  EXPECT_EQ(editor.findChild<QComboBox*>("Combo2")->currentText(), "Drosophila_melanogaster");
  EXPECT_EQ(editor.findChild<QPushButton*>("editNew")->text(), "Edit a New Table");
  EXPECT_FALSE(editor.findChild<QPushButton*>("edit")->isEnabled());    // built in
  EXPECT_FALSE(editor.findChild<QPushButton*>("delete")->isEnabled());  // built in
  const QString legend = editor.findChild<QLabel*>("legend")->text();
  EXPECT_EQ(legend.toStdString(),
            "     Preference Status:\n         P, Preferred\n         ?, Unknown\n    none, "
            "Unpreferred");
}

TEST_F(CodonTableEditorTest, EditSaveAndReloadKeepTheClassOfEachCodon) {
  CodonTableEditor editor(data, p);
  editor.AskName = [] { return std::optional<std::string>("Homo_sapiens"); };
  std::vector<int> asked;
  CodonChoice answer = CodonChoice::kPreferred;
  editor.AskCodon = [&](int index) {
    asked.push_back(index);
    return answer;
  };
  editor.findChild<QPushButton*>("editNew")->click();
  ASSERT_TRUE(editor.Session().Editing());
  EXPECT_EQ(editor.findChild<QPushButton*>("editNew")->text(), "Close Edition Mode");
  EXPECT_TRUE(editor.findChild<QLabel*>("legend")->text().endsWith(
      "Click a codon, to change its Preference Status:"));
  EXPECT_EQ(CellText(editor, kTTC), "TTC  F");  // starts unpreferred

  ClickCell(editor, kTTC);
  EXPECT_EQ(CellText(editor, kTTC), "TTC  F P");
  answer = CodonChoice::kUnknown;
  ClickCell(editor, kGGC);
  EXPECT_EQ(CellText(editor, kGGC), "GGC  G ?");
  answer = CodonChoice::kCancel;
  ClickCell(editor, kTTT);
  EXPECT_EQ(CellText(editor, kTTT), "TTT  F");
  // A stop codon and a single codon open no dialog.
  ClickCell(editor, kTAA);
  ClickCell(editor, kATG);
  EXPECT_EQ(asked, (std::vector<int>{kTTC, kGGC, kTTT}));

  editor.findChild<QPushButton*>("editNew")->click();  // Close Edition Mode
  EXPECT_TRUE(p.Boxes.empty());
  EXPECT_EQ(editor.findChild<QComboBox*>("Combo2")->currentText(), "Homo_sapiens");

  const std::string path = dir.File("human.ovp");
  p.SaveNames.push_back(path);
  editor.findChild<QPushButton*>("save")->click();
  ASSERT_EQ(p.SaveDialogs.size(), 1u);
  EXPECT_EQ(p.SaveDialogs[0].Filter, "OVELT Format (*.ovp)|*.ovp|All Files (*.*)|*.*");
  editor.accept();
  EXPECT_EQ(data.PrefTableName, "Homo_sapiens");
  ASSERT_NE(data.PrefTables.CodPrefUnPref("Homo_sapiens"), nullptr);

  // A fresh store reads the file back: each codon keeps its class.
  GCPrefUnPref store;
  ASSERT_EQ(ReadOvpFile(path, 1, store), "");
  const CodPrefUnPref* read = store.CodPrefUnPref("Homo_sapiens");
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->GC(), 1);
  EXPECT_EQ(read->prefUnPref(kTTC), kPreferred1);
  EXPECT_EQ(read->prefUnPref(kGGC), kUnknownPreference);
  EXPECT_EQ(read->prefUnPref(kTTT), kUnpreferred);
  EXPECT_EQ(read->prefUnPref(kTAA), kStopStatus);
  EXPECT_EQ(read->prefUnPref(kATG), kSingleCodon);
  for (int i = 1; i <= 64; ++i)
    EXPECT_EQ(read->prefUnPref(i), data.PrefTables.CodPrefUnPref("Homo_sapiens")->prefUnPref(i))
        << i;
}

TEST_F(CodonTableEditorTest, RefusalsOfNamesAndOfEmptyTables) {
  CodonTableEditor editor(data, p);
  std::string name = "Escherichia_coli";
  editor.AskName = [&name] { return std::optional<std::string>(name); };
  editor.AskCodon = [](int) { return CodonChoice::kUnknown; };
  QPushButton* edit_new = editor.findChild<QPushButton*>("editNew");
  edit_new->click();
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text,
            "Invalid Name! This name is already used by Ovelt. Please enter another name");
  EXPECT_FALSE(editor.Session().Editing());
  name = "TaxPartition";
  edit_new->click();
  EXPECT_EQ(p.LastBox(), "Invalid Name, please enter another name");

  name = "Nothing_known";
  edit_new->click();
  ASSERT_TRUE(editor.Session().Editing());
  ClickCell(editor, kTTC);  // unknown only: no information
  edit_new->click();
  EXPECT_EQ(p.LastBox(), "There is no information in Nothing_known table. Ovelt did not save it");
  EXPECT_EQ(editor.Session().Store().CodPrefUnPref("Nothing_known"), nullptr);

  // "None" holds no information either, and is not written.
  editor.findChild<QComboBox*>("Combo2")->setCurrentText("None");
  editor.findChild<QPushButton*>("save")->click();
  EXPECT_EQ(p.LastBox(), "There is no information in None table. Ovelt did not save it");
  EXPECT_TRUE(p.SaveDialogs.empty());
}

TEST_F(CodonTableEditorTest, CancelKeepsTheDataAsItWas) {
  data.PrefTableName = "Drosophila_melanogaster";
  CodonTableEditor editor(data, p);
  editor.AskName = [] { return std::optional<std::string>("Mine"); };
  editor.AskCodon = [](int) { return CodonChoice::kPreferred; };
  editor.findChild<QPushButton*>("editNew")->click();
  ClickCell(editor, kTTC);
  editor.findChild<QPushButton*>("editNew")->click();
  editor.reject();
  EXPECT_EQ(data.PrefTableName, "Drosophila_melanogaster");
  EXPECT_EQ(data.PrefTables.CodPrefUnPref("Mine"), nullptr);
}

TEST_F(CodonTableEditorTest, AnotherCodeListsItsTablesAndSaysWhenItHasNoBuiltIn) {
  CodonTableEditor editor(data, p);
  auto* codes = editor.findChild<QComboBox*>("Combo1");
  auto* tables = editor.findChild<QComboBox*>("Combo2");
  EXPECT_EQ(codes->currentIndex(), 0);
  EXPECT_EQ(tables->count(), 9);
  codes->setCurrentIndex(1);  // vertebrate mitochondrial
  EXPECT_EQ(p.LastBox(), NoPredefinedTableText(2));
  EXPECT_EQ(tables->count(), 1);
  EXPECT_EQ(tables->currentText(), "None");
}

TEST_F(CodonTableEditorTest, UserTablesAreEditedAndDeleted) {
  CodonTableEditor editor(data, p);
  editor.AskName = [] { return std::optional<std::string>("Mine"); };
  CodonChoice answer = CodonChoice::kPreferred;
  editor.AskCodon = [&answer](int) { return answer; };
  editor.findChild<QPushButton*>("editNew")->click();
  ClickCell(editor, kTTC);
  editor.findChild<QPushButton*>("editNew")->click();
  ASSERT_TRUE(editor.findChild<QPushButton*>("edit")->isEnabled());
  editor.findChild<QPushButton*>("edit")->click();
  ASSERT_TRUE(editor.Session().Editing());
  ClickCell(editor, kTTT);
  editor.findChild<QPushButton*>("editNew")->click();
  EXPECT_EQ(editor.Session().Store().CodPrefUnPref("Mine")->prefUnPref(kTTT), kPreferred1);

  // Delete asks first; Cancel keeps the table.
  editor.findChild<QPushButton*>("delete")->click();
  EXPECT_EQ(p.Boxes.back().Text, "Mine ?");
  ASSERT_NE(editor.Session().Store().CodPrefUnPref("Mine"), nullptr);
  p.Answers.push_back(MsgAnswer::kOk);
  editor.findChild<QPushButton*>("delete")->click();
  EXPECT_EQ(editor.Session().Store().CodPrefUnPref("Mine"), nullptr);
  EXPECT_EQ(editor.findChild<QComboBox*>("Combo2")->count(), 9);
}

TEST_F(CodonTableEditorTest, ReadingATableFileAddsItsTablesOrSaysWhereItFailed) {
  const std::string good = dir.Write(
      "two.ovp",
      "BEGIN CODONUSAGE;\r\n    PREFUNPREFCODONS GENETICCODE=UNIVNUC Fly_test =\r\n"
      "        PREF*: TTC UUA,\r\n        UNKNOWN: GGC;\r\nEND;\r\n");
  const std::string bad = dir.Write("bad.ovp",
                                    "BEGIN CODONUSAGE;\r\n    PREFUNPREFCODONS GENETICCODE=UNIVNUC "
                                    "X =\r\n        PREF*: TTC QQQ;\r\nEND;\r\n");
  CodonTableEditor editor(data, p);
  p.OpenNames.push_back(good);
  editor.findChild<QPushButton*>("read")->click();
  EXPECT_TRUE(p.Boxes.empty());
  EXPECT_EQ(editor.findChild<QComboBox*>("Combo2")->currentText(), "Fly_test");
  EXPECT_EQ(CellText(editor, kTTC), "TTC  F P");
  EXPECT_EQ(CellText(editor, 3), "TTA  L P");  // UUA: U reads as T
  EXPECT_EQ(CellText(editor, kGGC), "GGC  G ?");
  EXPECT_EQ(CellText(editor, kTTT), "TTT  F");

  p.OpenNames.push_back(bad);
  editor.findChild<QPushButton*>("read")->click();
  EXPECT_EQ(p.LastBox(), "Lexical error in #3");
}

TEST_F(CodonTableEditorTest, AThirdLevelIsShownButNotWrittenBack) {
  // The reader takes PREF*** (status 6); the writer has no head for it, so a saved table loses
  // those codons, which read back as unpreferred.
  const std::string three = dir.Write(
      "three.ovp",
      "BEGIN CODONUSAGE;\r\n    PREFUNPREFCODONS GENETICCODE=UNIVNUC Levels =\r\n"
      "        PREF*: TTC,\r\n        PREF***: CTG;\r\nEND;\r\n");
  CodonTableEditor editor(data, p);
  p.OpenNames.push_back(three);
  editor.findChild<QPushButton*>("read")->click();
  ASSERT_EQ(editor.Session().SelectedName(), "Levels");
  EXPECT_EQ(CellText(editor, 20), "CTG  L PPP");  // CTG: (2-1)*16 + (1-1)*4 + 4
  const std::string saved = dir.File("levels.ovp");
  p.SaveNames.push_back(saved);
  editor.findChild<QPushButton*>("save")->click();
  GCPrefUnPref store;
  ASSERT_EQ(ReadOvpFile(saved, 1, store), "");
  EXPECT_EQ(store.CodPrefUnPref("Levels")->prefUnPref(kTTC), kPreferred1);
  EXPECT_EQ(store.CodPrefUnPref("Levels")->prefUnPref(20), kUnpreferred);
}

TEST_F(CodonTableEditorTest, TheSmallDialogsValidateAndAnswer) {
  TableNameDialog name_dialog(p);
  name_dialog.SetName("Saccharomyces_cerevisiae");
  name_dialog.show();
  name_dialog.accept();
  EXPECT_TRUE(name_dialog.isVisible());  // refused: stays open
  EXPECT_EQ(p.LastBox(), kReservedTableName);
  name_dialog.SetName("Yeast_2");
  name_dialog.accept();
  EXPECT_EQ(name_dialog.result(), QDialog::Accepted);
  EXPECT_EQ(name_dialog.Name(), "Yeast_2");

  CodonStatusDialog codon_dialog("TTC  F");
  codon_dialog.show();
  codon_dialog.findChild<QPushButton*>("Unknown")->click();
  EXPECT_EQ(codon_dialog.Choice(), CodonChoice::kUnknown);
  EXPECT_EQ(codon_dialog.result(), QDialog::Accepted);
  CodonStatusDialog cancelled("TTC  F");
  cancelled.show();
  cancelled.findChild<QPushButton*>("Cancel")->click();
  EXPECT_EQ(cancelled.Choice(), CodonChoice::kCancel);
  EXPECT_EQ(cancelled.result(), QDialog::Rejected);
}

TEST_F(CodonTableEditorTest, TheMenuEntryAssignsTheChosenTable) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  ASSERT_TRUE(window.ActionFor("MenuGCPreferentTable_Click")->isVisible());
  OnNextDialog([](QDialog* dialog) {
    dialog->findChild<QComboBox*>("Combo2")->setCurrentText("Escherichia_coli");
    dialog->accept();
  });
  window.Trigger("MenuGCPreferentTable_Click");
  EXPECT_EQ(window.Bench().Data().PrefTableName, "Escherichia_coli");
}

}  // namespace
}  // namespace ovelt

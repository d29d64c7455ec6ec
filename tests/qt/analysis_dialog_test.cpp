#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>

#include "core/set_definition.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/grid_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"
#include "ui/qt/select_statistic_dialog.h"
#include "ui/qt/text_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

TEST(AnalysisDialogs, DnaPolymorphismRunsFromItsMenuEntryThroughTheGeneratedDialog) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  const std::string file =
      dir.Write("four.fas", ">a\nACGTACGTAC\n>b\nACGTACGTAA\n>c\nATGTACGTAC\n>d\nACGTACCTAC\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  QAction* action = window.ActionFor("MenuDnaPol_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_TRUE(action->isVisible());
  EXPECT_EQ(action->text(), "&DNA Polymorphism...");

  // First a region beyond the last site: the dialog refuses it and stays; then a good one.
  int dialogs = 0;
  std::function<void()> answer = [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "DNA Polymorphism");
    auto edits = dialog->findChildren<QLineEdit*>();
    ASSERT_GE(edits.size(), 2);
    edits[1]->setText("11");
    QTimer::singleShot(0, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
    });
    dialog->accept();
    EXPECT_TRUE(dialog->LastOkRefused());
    edits[1]->setText("10");
    dialog->accept();
  };
  QTimer::singleShot(0, answer);
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains(" Selected region: 1-10   Number of sites: 10")) << report.toStdString();
  // Three sites segregate (2, 7 and 10), each a singleton of diversity 1/2, so k = 1.5.
  EXPECT_TRUE(report.contains(" Number of polymorphic (segregating) sites, S: 3\n"))
      << report.toStdString();
  EXPECT_TRUE(report.contains(" Average number of nucleotide differences, k: 1.500\n"));
}

TEST(AnalysisDialogs, SynonymousAsksAboutTheCodingRegionThenShowsItsOptions) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  const std::string file = dir.Write("three.fas", ">a\nCTTAAA\n>b\nCTCAAA\n>c\nCTCGAA\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  QAction* action = window.ActionFor("MenuSynonymous_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_TRUE(action->isVisible());
  EXPECT_EQ(action->text(), "Synonymous and &NonSynonymous Substitutions...");

  // Cancel to the question: no dialog.
  p.Answers.push_back(MsgAnswer::kCancel);
  int dialogs = 0;
  action->trigger();
  ASSERT_FALSE(p.Boxes.empty());
  EXPECT_EQ(p.Boxes.back().Text,
            "No Protein Coding region defined. All sites will be considered as noncoding "
            "positions.\nInput data file: " + window.Bench().Data().FilePath);
  EXPECT_EQ(p.Boxes.back().Buttons, MsgButtons::kOkCancel);

  // OK: the dialog offers the region, the set, the silent sites, the table and the seed.
  p.Answers.push_back(MsgAnswer::kOk);
  std::function<void()> answer = [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "Synonymous and NonSyn. Substitutions");
    QStringList checks;
    for (auto* box : dialog->findChildren<QCheckBox*>()) checks << box->text();
    EXPECT_TRUE(checks.contains("Silent")) << checks.join("|").toStdString();
    EXPECT_TRUE(checks.contains("Table of pairwise comparisons")) << checks.join("|").toStdString();
    for (auto* box : dialog->findChildren<QCheckBox*>())
      if (box->text() == "Silent") box->setChecked(true);
    EXPECT_GE(dialog->findChildren<QLineEdit*>().size(), 3);  // from, to, seed
    dialog->accept();
  };
  QTimer::singleShot(0, answer);
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains(" Number non-coding positions analyzed: 6")) << report.toStdString();
}

TEST(AnalysisDialogs, RecombinationRunsFromItsMenuEntryThroughTheGeneratedDialog) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  // Sequence c differs from the others at four sites: Sk^2 = 3.75, Theta = 2 and
  // G = 0.703125, above g(0.001, 4), so C is the first grid point.
  const std::string file = dir.Write("four.fas", ">a\nAAAAA\n>b\nAAAAA\n>c\nGGGAG\n>d\nAAAAA\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  QAction* action = window.ActionFor("MenuRecombination_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_TRUE(action->isVisible());
  EXPECT_EQ(action->text(), "&Recombination...");
  int dialogs = 0;
  std::function<void()> answer = [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "Recombination");
    EXPECT_EQ(dialog->findChildren<QLineEdit*>().size(), 2);  // from, to
    dialog->accept();
  };
  QTimer::singleShot(0, answer);
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains("    Variance of the sample distribution of Kij, Sk^2: 3.750\n"))
      << report.toStdString();
  EXPECT_TRUE(report.contains("    Estimate of R, per gene: 0.001\n")) << report.toStdString();
  EXPECT_TRUE(report.contains("    Minimum number of recombination events, Rm: 0\n"));
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

TEST(AnalysisDialogs, DnaDivergenceTakesTwoPopulationsAndShowsItsWindows) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  // A = a, b; B = c, d. Site 1 is a fixed difference; site 4 is polymorphic in A only.
  const std::string file = dir.Write("two.fas", ">a\nACGT\n>b\nACGA\n>c\nTCGA\n>d\nTCGA\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "A", {1, 2}).has_value());
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "B", {3, 4}).has_value());
  window.Refresh();
  QAction* action = window.ActionFor("MenuDnaDiverg2_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_TRUE(action->isVisible());

  int dialogs = 0;
  std::function<void()> answer = [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "DNA Divergence Between Populations");
    for (auto* box : dialog->findChildren<QCheckBox*>())
      if (box->text() == "Sliding Window") box->setChecked(true);
    // The window and step fields come after the region's two.
    auto edits = dialog->findChildren<QLineEdit*>();
    ASSERT_EQ(edits.size(), 4);
    edits[2]->setText("2");
    edits[3]->setText("2");
    dialog->accept();
  };
  QTimer::singleShot(0, answer);
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains(" Population 1: A\n")) << report.toStdString();
  EXPECT_TRUE(report.contains("   Number of fixed differences: 1\n")) << report.toStdString();
  EXPECT_TRUE(report.contains(
      "   Average number of nuc. subs. per site between populations, Dxy: 0.37500\n"));
  ASSERT_NE(window.Grid(), nullptr);
  QTableWidget* table = window.Grid()->Table();
  ASSERT_GE(table->rowCount(), 2);
  ASSERT_GE(table->columnCount(), 6);
  // Two windows; the rows below them stay empty.
  if (table->rowCount() > 2 && table->item(2, 0) != nullptr) {
    EXPECT_TRUE(table->item(2, 0)->text().trimmed().isEmpty());
  }
  EXPECT_EQ(table->horizontalHeaderItem(4)->text(), "Dxy");
  // Sites 1-2: the fixed difference alone, Dxy = 1/2.
  EXPECT_EQ(table->item(0, 4)->text().trimmed(), "0.50000");
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

TEST(AnalysisDialogs, GeneConversionShowsItsTractsAndInformativeSites) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  // q1 carries population P's C at sites 2 and 3: a tract of two sites.
  const std::string file = dir.Write(
      "tracts.fas",
      ">p1\nCCCA\n>p2\nCCCA\n>p3\nCCCA\n>q1\nACCA\n>q2\nAAAA\n>q3\nAAAA\n>q4\nAAAA\n"
      ">q5\nAAAA\n>q6\nAAAA\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "P", {1, 2, 3}).has_value());
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "Q", {4, 5, 6, 7, 8, 9}).has_value());
  window.Refresh();
  QAction* action = window.ActionFor("MenuGeneConversionNew_Click");
  ASSERT_NE(action, nullptr);
  int dialogs = 0;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "Gene Conversion");
    dialog->accept();
  });
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains(" Number of Gene Conversion tracts identified:  1\n"))
      << report.toStdString();
  EXPECT_TRUE(report.contains("Tract located between sites: 2-3\n")) << report.toStdString();
  ASSERT_NE(window.Grid(), nullptr);
  QTableWidget* table = window.Grid()->Table();
  ASSERT_GE(table->columnCount(), 2);
  EXPECT_EQ(table->horizontalHeaderItem(1)->text(), "Psi");
  // Site 1 is monomorphic and different with six lines in Q: Psi 1/2.
  EXPECT_EQ(table->item(0, 0)->text().trimmed(), "1");
  EXPECT_EQ(table->item(0, 1)->text().trimmed(), "0.50000");
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

TEST(AnalysisDialogs, GeneFlowRunsWithItsTestAndShowsBothGrids) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  const std::string file =
      dir.Write("two.fas", ">s1\nAAAA\n>s2\nAAAT\n>s3\nCAAA\n>s4\nCAAT\n>s5\nCAAT\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "A", {1, 2}).has_value());
  ASSERT_FALSE(AddSequenceSet(window.Bench().Data(), "B", {3, 4, 5}).has_value());
  window.Refresh();
  QAction* action = window.ActionFor("MenuGeneFlowNew_Click");
  ASSERT_NE(action, nullptr);
  int dialogs = 0;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    ++dialogs;
    EXPECT_EQ(dialog->windowTitle(), "Gene Flow and Genetic Differentiation");
    for (auto* box : dialog->findChildren<QCheckBox*>())
      if (box->text() == "Permutation test") box->setChecked(true);
    dialog->accept();
  });
  action->trigger();
  EXPECT_EQ(dialogs, 1);
  const QString report = window.Text()->Report();
  EXPECT_TRUE(report.contains("  Hudson 2000, Snn: 0.70000\n")) << report.toStdString();
  EXPECT_TRUE(report.contains("permutation test with 1000 replicates)")) << report.toStdString();
  ASSERT_NE(window.Grid(), nullptr);
  QTableWidget* pairs = window.Grid()->Table();
  EXPECT_EQ(pairs->horizontalHeaderItem(9)->text(), "Fst");
  EXPECT_EQ(pairs->item(0, 9)->text().trimmed(), "0.44444");
  ASSERT_NE(window.SecondGrid(), nullptr);
  QTableWidget* tests = window.SecondGrid()->Table();
  ASSERT_GE(tests->columnCount(), 8);
  ASSERT_NE(tests->horizontalHeaderItem(7), nullptr);
  EXPECT_EQ(tests->horizontalHeaderItem(7)->text(), "P(Snn)");
  ASSERT_NE(tests->item(0, 0), nullptr);
  EXPECT_EQ(tests->item(0, 0)->text().trimmed(), "A");

  // The table of pairs offers its export: Select Statistic, then the file.
  QToolButton* exporting = window.Grid()->ExportButton();
  ASSERT_NE(exporting, nullptr);
  EXPECT_FALSE(exporting->isHidden());
  const std::string matrix = dir.File("fst.meg");
  p.SaveNames.push_back(matrix);
  QTimer::singleShot(0, [] {
    auto* select = qobject_cast<SelectStatisticDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(select, nullptr);
    EXPECT_EQ(select->StatisticBox()->currentText(), "Fst");
    select->FormatBox()->setCurrentIndex(1);
    select->accept();
  });
  exporting->click();
  EXPECT_EQ(testing::ReadBytes(matrix),
            "#mega\r\n!Title: Fst values exported by Ovelt Workbench (Ovelt); fst.meg;\r\n"
            "#A\r\n#B\r\n\r\n0.44444\r\n");
  ASSERT_FALSE(p.SaveDialogs.empty());
  EXPECT_EQ(p.SaveDialogs.back().Title, "MEGA Format File");
  EXPECT_EQ(p.SaveDialogs.back().Filter, "MEGA Format (*.meg)|*.meg|All Files (*.*)|*.*");

  // Another result takes the offer away.
  QTimer::singleShot(0, [] {
    if (auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget()))
      dialog->accept();
  });
  window.ActionFor("MenuDnaPol_Click")->trigger();
  EXPECT_TRUE(window.Grid()->ExportButton()->isHidden());
}

}  // namespace
}  // namespace ovelt

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"
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
  EXPECT_TRUE(report.contains(" Selected region: 1-10   Number of sites: 10"))
      << report.toStdString();
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
            "positions.\nInput data file: " +
                window.Bench().Data().FilePath);
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

// The analyses of two sequence sets or more from their menu entries, through their generated
// dialogs: DNA divergence, gene conversion and gene flow fill the text, grid and second grid
// windows, and gene flow's table offers its export.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

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

using Sets = std::vector<std::pair<std::string, std::vector<int32_t>>>;

class TwoSetDialogs : public ::testing::Test {
 protected:
  // Opens `fasta` written for the test, with `sets` defined as the set dialog would.
  MainWindow& Open(const std::string& fasta, const Sets& sets) {
    p_.ProgramDir = dir_.Path().string();
    window_ = std::make_unique<MainWindow>(p_);
    EXPECT_TRUE(window_->Bench().OpenPath(dir_.Write("data.fas", fasta)));
    for (const auto& [name, members] : sets)
      EXPECT_FALSE(AddSequenceSet(window_->Bench().Data(), name, members).has_value());
    window_->Refresh();
    return *window_;
  }

  // Triggers the menu entry of `handler`; `adjust` sets the dialog's fields before OK. The
  // titles of the dialogs that opened.
  std::vector<std::string> Run(const std::string& handler,
                               const std::function<void(OptionDialog&)>& adjust = {}) {
    std::vector<std::string> titles;
    QTimer::singleShot(0, [&titles, &adjust] {
      auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      titles.push_back(dialog->windowTitle().toStdString());
      if (adjust) adjust(*dialog);
      dialog->accept();
    });
    QAction* action = window_->ActionFor(handler);
    EXPECT_NE(action, nullptr);
    if (action != nullptr) action->trigger();
    return titles;
  }

  [[nodiscard]] std::string Report() const { return window_->Text()->Report().toStdString(); }

  static std::string Cell(const GridWindow* grid, int row, int column) {
    const QTableWidgetItem* item = grid->Table()->item(row, column);
    return item == nullptr ? std::string() : item->text().trimmed().toStdString();
  }

  static std::string Head(const GridWindow* grid, int column) {
    const QTableWidgetItem* item = grid->Table()->horizontalHeaderItem(column);
    return item == nullptr ? std::string() : item->text().toStdString();
  }

  testing::TempDir dir_;
  testing::ScriptedPlatform p_;
  std::unique_ptr<MainWindow> window_;
};

TEST_F(TwoSetDialogs, DnaDivergenceTakesTwoPopulationsAndShowsItsWindows) {
  // A = a, b; B = c, d. Site 1 is a fixed difference; site 4 is polymorphic in A only.
  MainWindow& window =
      Open(">a\nACGT\n>b\nACGA\n>c\nTCGA\n>d\nTCGA\n", {{"A", {1, 2}}, {"B", {3, 4}}});
  const auto titles = Run("MenuDnaDiverg2_Click", [](OptionDialog& dialog) {
    for (auto* box : dialog.findChildren<QCheckBox*>())
      if (box->text() == "Sliding Window") box->setChecked(true);
    // The window and step fields come after the region's two.
    const auto edits = dialog.findChildren<QLineEdit*>();
    ASSERT_EQ(edits.size(), 4);
    edits[2]->setText("2");
    edits[3]->setText("2");
  });
  EXPECT_EQ(titles, std::vector<std::string>{"DNA Divergence Between Populations"});
  EXPECT_NE(Report().find(" Population 1: A\n"), std::string::npos) << Report();
  EXPECT_NE(Report().find("   Number of fixed differences: 1\n"), std::string::npos);
  EXPECT_NE(
      Report().find("   Average number of nuc. subs. per site between populations, Dxy: 0.37500\n"),
      std::string::npos);
  ASSERT_NE(window.Grid(), nullptr);
  EXPECT_EQ(Head(window.Grid(), 4), "Dxy");
  // Sites 1-2: the fixed difference alone, Dxy = 1/2; two windows, the rows below empty.
  EXPECT_EQ(Cell(window.Grid(), 0, 4), "0.50000");
  EXPECT_EQ(Cell(window.Grid(), 1, 0), "3-4");
  EXPECT_EQ(Cell(window.Grid(), 2, 0), "");
}

TEST_F(TwoSetDialogs, GeneConversionShowsItsTractsAndInformativeSites) {
  // q1 carries population P's C at sites 2 and 3: a tract of two sites.
  MainWindow& window = Open(
      ">p1\nCCCA\n>p2\nCCCA\n>p3\nCCCA\n>q1\nACCA\n>q2\nAAAA\n>q3\nAAAA\n>q4\nAAAA\n"
      ">q5\nAAAA\n>q6\nAAAA\n",
      {{"P", {1, 2, 3}}, {"Q", {4, 5, 6, 7, 8, 9}}});
  EXPECT_EQ(Run("MenuGeneConversionNew_Click"), std::vector<std::string>{"Gene Conversion"});
  EXPECT_NE(Report().find(" Number of Gene Conversion tracts identified:  1\n"), std::string::npos)
      << Report();
  EXPECT_NE(Report().find("Tract located between sites: 2-3\n"), std::string::npos);
  ASSERT_NE(window.Grid(), nullptr);
  EXPECT_EQ(Head(window.Grid(), 1), "Psi");
  // Site 1 is monomorphic and different with six lines in Q: Psi 1/2.
  EXPECT_EQ(Cell(window.Grid(), 0, 0), "1");
  EXPECT_EQ(Cell(window.Grid(), 0, 1), "0.50000");
}

TEST_F(TwoSetDialogs, GeneFlowRunsWithItsTestShowsBothGridsAndExportsAMatrix) {
  MainWindow& window = Open(">s1\nAAAA\n>s2\nAAAT\n>s3\nCAAA\n>s4\nCAAT\n>s5\nCAAT\n",
                            {{"A", {1, 2}}, {"B", {3, 4, 5}}});
  const auto titles = Run("MenuGeneFlowNew_Click", [](OptionDialog& dialog) {
    for (auto* box : dialog.findChildren<QCheckBox*>())
      if (box->text() == "Permutation test") box->setChecked(true);
  });
  EXPECT_EQ(titles, std::vector<std::string>{"Gene Flow and Genetic Differentiation"});
  EXPECT_NE(Report().find("  Hudson 2000, Snn: 0.70000\n"), std::string::npos) << Report();
  EXPECT_NE(Report().find("permutation test with 1000 replicates)"), std::string::npos);
  ASSERT_NE(window.Grid(), nullptr);
  EXPECT_EQ(Head(window.Grid(), 9), "Fst");
  EXPECT_EQ(Cell(window.Grid(), 0, 9), "0.44444");
  ASSERT_NE(window.SecondGrid(), nullptr);
  EXPECT_EQ(Head(window.SecondGrid(), 7), "P(Snn)");
  EXPECT_EQ(Cell(window.SecondGrid(), 0, 0), "A");

  // The table of pairs offers its export: Select Statistic, then the file.
  QToolButton* exporting = window.Grid()->ExportButton();
  ASSERT_NE(exporting, nullptr);
  EXPECT_FALSE(exporting->isHidden());
  const std::string matrix = dir_.File("fst.meg");
  p_.SaveNames.push_back(matrix);
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
  ASSERT_FALSE(p_.SaveDialogs.empty());
  EXPECT_EQ(p_.SaveDialogs.back().Title, "MEGA Format File");
  EXPECT_EQ(p_.SaveDialogs.back().Filter, "MEGA Format (*.meg)|*.meg|All Files (*.*)|*.*");

  // Another result takes the offer away.
  Run("MenuDnaPol_Click");
  EXPECT_TRUE(window.Grid()->ExportButton()->isHidden());
}

}  // namespace
}  // namespace ovelt

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>

#include "output/graph_data.h"
#include "shell/command_registry.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "shell/data_information.h"
#include "ui/qt/data_info_window.h"
#include "ui/qt/grid_window.h"
#include "ui/qt/include_dialog.h"
#include "ui/qt/main_window.h"
#include "ui/qt/qt_platform.h"
#include "ui/qt/text_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// Runs `act` on the modal dialog that the next call opens, once it is up.
void OnNextDialog(std::function<void(QDialog*)> act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(dialog);
  });
}

class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    p.ProgramDir = dir.Path().string();
    file = dir.Write("gaps.fas", ">a\nACGTA\n>b\nAC-TA\n>c\nTCGTC\n>d\nTCGTA\n");
  }
  TempDir dir;
  ScriptedPlatform p;
  std::string file;
};

TEST_F(MainWindowTest, MenusComeFromTheModelAndFollowTheOpenFile) {
  MainWindow window(p);
  QAction* open = window.ActionFor("leer_Click");
  ASSERT_NE(open, nullptr);
  EXPECT_EQ(open->text(), "Open Data &File...");
  EXPECT_TRUE(open->isEnabled());
  EXPECT_FALSE(window.ActionFor("del_Click")->isEnabled());
  EXPECT_FALSE(window.ActionFor("DataInformacion_Click")->isEnabled());
  EXPECT_EQ(window.windowTitle(), "Ovelt Workbench");

  p.OpenNames.push_back(file);
  open->trigger();
  EXPECT_EQ(window.windowTitle(), "Ovelt Workbench - gaps.fas");
  EXPECT_FALSE(open->isEnabled());
  EXPECT_TRUE(window.ActionFor("del_Click")->isEnabled());
  EXPECT_TRUE(window.ActionFor("DataInformacion_Click")->isEnabled());
  EXPECT_EQ(window.ActionFor("mnuFicheros_Click(1)")->text().toStdString(), "&1 " + file);

  p.Answers.push_back(MsgAnswer::kYes);
  window.ActionFor("del_Click")->trigger();
  EXPECT_EQ(p.Boxes.back().Text, "Close file ? \nInput data file: " + file);
  EXPECT_TRUE(open->isEnabled());
  EXPECT_EQ(window.windowTitle(), "Ovelt Workbench");
}

TEST_F(MainWindowTest, TheFrameShowsTheVersion) {
  MainWindow window(p);
  auto* frame = window.findChild<QLabel*>("versionFrame");
  ASSERT_NE(frame, nullptr);
  EXPECT_TRUE(frame->text().contains("Ver. 4.00.5"));
}

TEST_F(MainWindowTest, CommandsThatAreNotBuiltAreNotShown) {
  MainWindow window(p);
  EXPECT_FALSE(window.ActionFor("MenuHKANew_Click")->isVisible());
  EXPECT_TRUE(window.ActionFor("MenuGeneConversionNew_Click")->isVisible());
  EXPECT_TRUE(window.ActionFor("MenuDLigamiento_Click")->isVisible());
  EXPECT_TRUE(window.ActionFor("leer_Click")->isVisible());
}

TEST_F(MainWindowTest, LinkageDisequilibriumFillsTextGridAndGraph) {
  const std::string ld =
      dir.Write("ld.fas", ">a\nAACG\n>b\nAACA\n>c\nAGTA\n>d\nGGTA\n>e\nGACG\n>f\nGGTA\n");
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(ld));
  window.Refresh();
  OnNextDialog([](QDialog* dialog) {
    for (auto* box : dialog->findChildren<QCheckBox*>())
      if (box->text() == "Fisher's exact test") box->setChecked(true);
    dialog->accept();
  });
  window.Trigger("MenuDLigamiento_Click");
  const OutputChannel& out = window.Bench().Output();
  EXPECT_NE(out.TextBuffer.find(" Value of ZnS (Kelly 1997): 0.3704"), std::string::npos);
  EXPECT_TRUE(window.Shows(window.Text()));
  EXPECT_TRUE(window.Shows(window.Grid()));
  EXPECT_EQ(out.Grid1.Rows.size(), 6u);
  ASSERT_FALSE(out.Grid1.ColumnTitles.empty());
  EXPECT_EQ(out.Grid1.ColumnTitles.back(), "Fisher");
  EXPECT_EQ(out.Graph().GraphKind, kGraphLinkage);
  EXPECT_EQ(out.Graph().GraphRows, 6);
}

TEST_F(MainWindowTest, DataInformationGoesToTheTextWindow) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  OnNextDialog([](QDialog* dialog) {
    auto* table = dialog->findChild<QTableWidget*>();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->item(0, 0)->text(), "Number of Nucleotides");
    EXPECT_EQ(table->item(0, 1)->text(), "5");
    for (auto* button : dialog->findChildren<QPushButton*>())
      if (button->text() == "Output") button->click();
    dialog->reject();
  });
  EXPECT_EQ(window.ResultsPanelText(), "");
  // As if Fu and Li's tests had run before.
  window.Bench().Output().ResultCode = 12;
  window.Bench().Output().Labels = FindEntry(CommandId::kFuLiOutgroup)->Facts.Labels;
  window.Trigger("DataInformacion_Click");
  EXPECT_FALSE(window.Text()->windowTitle().contains("Fu and Li"));
  ASSERT_TRUE(window.Shows(window.Text()));
  EXPECT_TRUE(window.Text()->Report().contains(" Total Number of Sequences     4"));
  // The second status panel names the results on show, and empties when they go.
  EXPECT_EQ(window.ResultsPanelText(), "Data Information");
  p.Answers.push_back(MsgAnswer::kYes);
  window.Trigger("del_Click");
  EXPECT_FALSE(window.Shows(window.Text()));
  EXPECT_EQ(window.ResultsPanelText(), "");
}

TEST_F(MainWindowTest, SecondGridShowsWithItsCaptionAndGoesWithTheNextRun) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  OutputChannel& channel = window.Bench().Output();
  channel.ResetOutputs();
  channel.ResultCode = 23;  // codon usage
  channel.Labels = FindEntry(CommandId::kCodonUsage)->Facts.Labels;
  channel.Grid2.ColumnTitles = {"Codon", "Count"};
  channel.Grid2.Rows.push_back({"TTT", "4"});
  channel.ShowResult(kResultSecondGrid);
  window.Refresh();
  ASSERT_TRUE(window.Shows(window.SecondGrid()));
  EXPECT_EQ(window.SecondGrid()->windowTitle(), "Codon Usage of:");
  EXPECT_FALSE(window.Shows(window.Grid()));
  channel.ResetOutputs();
  window.Refresh();
  EXPECT_FALSE(window.Shows(window.SecondGrid()));
}

TEST_F(MainWindowTest, Form17WritesOnlyOnOk) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  OnNextDialog([](QDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Segregating Sites / Number of Mutations");
    auto radios = dialog->findChildren<QRadioButton*>();
    ASSERT_EQ(radios.size(), 2);
    radios[1]->setChecked(true);
    dialog->reject();
  });
  window.Trigger("MenuSSMutations_Click");
  EXPECT_FALSE(window.Bench().Data().UseMutations);
  OnNextDialog([](QDialog* dialog) {
    dialog->findChildren<QRadioButton*>()[1]->setChecked(true);
    dialog->accept();
  });
  window.Trigger("MenuSSMutations_Click");
  EXPECT_TRUE(window.Bench().Data().UseMutations);
}

TEST_F(MainWindowTest, IncludeDialogStaysOpenWhenNothingIsTicked) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  bool stayed = false;
  OnNextDialog([&stayed](QDialog* dialog) {
    auto* include = qobject_cast<IncludeDialog*>(dialog);
    ASSERT_NE(include, nullptr);
    include->SelectAll(false);
    include->accept();
    stayed = include->isVisible();
    include->Boxes()[1]->setChecked(false);
    include->SelectAll(true);
    include->Boxes()[1]->setChecked(false);  // exclude sequence 2, the one with the gap
    include->accept();
  });
  window.Trigger("MenuIncluirSeqs_Click");
  EXPECT_TRUE(stayed);
  EXPECT_EQ(p.Boxes.front().Text, "The active data file must contain at least one sequence.");
  EXPECT_EQ(window.Bench().Data().NumSeqs, 3);
  EXPECT_EQ(window.Bench().Data().SiteClass[3], kMonomorphic);
}

// The Data Information grid shows all its rows: nothing of it is scrolled out of sight.
TEST(DataInfoWindowTest, TallAndWideEnoughForEveryRow) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(OVELT_EXAMPLES "/example.fas"));
  const std::vector<InfoRow> rows = DataInformationRows(wb.Data());
  DataInfoWindow window(rows, [] {});
  window.show();
  QApplication::processEvents();
  QTableWidget* table = window.Table();
  ASSERT_EQ(table->rowCount(), 15);
  const QRect seen = table->viewport()->rect();
  for (int r = 0; r < table->rowCount(); ++r)
    for (int c = 0; c < 2; ++c)
      EXPECT_TRUE(seen.contains(table->visualItemRect(table->item(r, c)))) << r << "," << c;
}

TEST(QtFilter, TheOpenDialogTakesTheCommonExtensionsOfEveryFormat) {
  const QString filters = QtFilterFrom(kOpenDialogFilter);
  EXPECT_TRUE(filters.startsWith("All Data Files (*.fas *.meg *.nbr *.nex *.phy *.pir *.fasta *.fa "
                                 "*.fna *.nexus *.nxs *.phylip *.mega);;FASTA Files (*.fas);;"))
      << filters.toStdString();
}

TEST(QtFilter, ClassicFilterBecomesQtFilters) {
  EXPECT_EQ(QtFilterFrom("All Data Files|*.fas;*.meg|FASTA Files (*.fas)|*.fas"),
            "All Data Files (*.fas *.meg);;FASTA Files (*.fas)");
}

}  // namespace
}  // namespace ovelt

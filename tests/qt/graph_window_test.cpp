#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>

#include <cstdlib>
#include <fstream>
#include <string>

#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "polymorphism/run_fixture.h"
#include "output/graph_layout.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/graph_handlers.h"
#include "ui/qt/graph_window.h"
#include "ui/qt/main_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

struct Desk {
  Desk() : window(platform) {
    platform.ProgramDir = dir.Path().string();
    EXPECT_TRUE(window.Bench().OpenPath(kExample));
    window.Refresh();
  }
  // DNA Polymorphism along the default window, as its dialog would run it.
  void RunWindows() {
    DnaPolOptions options;
    options.SlidingOn = true;
    ASSERT_TRUE(test::RunWith(CommandId::kDnaPolymorphism, window.Bench(), options).Stands);
    window.Refresh();
  }
  GraphWindow* Open() {
    window.Trigger("grafics_Click");
    return FindGraphWindow(window);
  }
  bool Said(const std::string& text) const {
    for (const auto& box : platform.Boxes)
      if (box.Text == text) return true;
    return false;
  }
  TempDir dir;
  ScriptedPlatform platform;
  MainWindow window;
};

std::string Head(const std::string& path, size_t bytes) {
  std::ifstream in(path, std::ios::binary);
  std::string head(bytes, '\0');
  in.read(head.data(), static_cast<std::streamsize>(bytes));
  head.resize(static_cast<size_t>(in.gcount()));
  return head;
}

TEST(GraphWindowTest, GraphsEntryShowsTheRunsChartWithItsChooser) {
  Desk d;
  QAction* entry = d.window.ActionFor("grafics_Click");
  ASSERT_NE(entry, nullptr);
  // No chart yet: the graph buttons are off until a run leaves one.
  EXPECT_FALSE(entry->isEnabled());
  d.RunWindows();
  EXPECT_TRUE(entry->isEnabled());
  EXPECT_TRUE(entry->isVisible());
  EXPECT_EQ(entry->text(), "&Graphs...");
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  EXPECT_TRUE(d.window.Shows(graph));
  EXPECT_EQ(graph->windowTitle(), "GRAPH");
  ASSERT_EQ(graph->Chooser()->count(), 3);
  EXPECT_EQ(graph->Chooser()->itemText(0), "Pi");
  EXPECT_EQ(graph->Chooser()->itemText(1), "Theta");
  EXPECT_EQ(graph->Chooser()->itemText(2), "S");
  EXPECT_FALSE(graph->SignButton()->isVisible());
  EXPECT_TRUE(graph->Picture().HasChart);
  graph->Chooser()->setCurrentIndex(1);
  bool theta = false;
  for (const GraphText& t : graph->Picture().Texts) theta = theta || t.Text == "Theta";
  EXPECT_TRUE(theta);
  EXPECT_TRUE(d.platform.Boxes.empty());
}

TEST(GraphWindowTest, SaveGraphAsBitmapPngAndSvg) {
  Desk d;
  d.RunWindows();
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  const std::string bmp = (d.dir.Path() / "chart.bmp").string();
  d.platform.SaveNames.push_back(bmp);
  EXPECT_TRUE(graph->SaveGraph());
  ASSERT_EQ(d.platform.SaveDialogs.size(), 1u);
  EXPECT_EQ(d.platform.SaveDialogs[0].Title, "Save Graphic");
  EXPECT_EQ(d.platform.SaveDialogs[0].DefaultName, "*.bmp");
  EXPECT_EQ(d.platform.SaveDialogs[0].Filter.rfind("Bitmap Format (*.bmp) |*.bmp|", 0), 0u);
  EXPECT_TRUE(d.Said("Graph saved on file: " + bmp));
  EXPECT_EQ(Head(bmp, 2), "BM");
  const std::string png = (d.dir.Path() / "chart.png").string();
  EXPECT_TRUE(graph->SaveGraphTo(png));
  EXPECT_EQ(Head(png, 8), "\x89PNG\r\n\x1a\n");
  const std::string svg = (d.dir.Path() / "chart.svg").string();
  EXPECT_TRUE(graph->SaveGraphTo(svg));
  EXPECT_NE(Head(svg, 400).find("<svg"), std::string::npos);
  // A cancelled dialog writes nothing and says nothing.
  const size_t boxes = d.platform.Boxes.size();
  EXPECT_FALSE(graph->SaveGraph());
  EXPECT_EQ(d.platform.Boxes.size(), boxes);
}

TEST(GraphWindowTest, ClipboardAndPrinter) {
  Desk d;
  d.RunWindows();
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  graph->CopyGraph();
  EXPECT_TRUE(d.Said("Graph sent to the clipboard"));
  EXPECT_FALSE(QApplication::clipboard()->image().isNull());

  const std::string pdf = (d.dir.Path() / "chart.pdf").string();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(pdf));
  EXPECT_TRUE(graph->PrintGraphTo(printer));
  EXPECT_TRUE(d.Said("Graph sent to the printer"));
  EXPECT_EQ(Head(pdf, 4), "%PDF");
}

TEST(GraphWindowTest, FileMenuActsOnTheGraphWhileItHasTheFocus) {
  Desk d;
  d.RunWindows();
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  SetGraphFocus(d.window, true);
  EXPECT_EQ(d.window.ActionFor("salvar_Click")->text(), "Save Graph...");
  EXPECT_EQ(d.window.ActionFor("printout_Click")->text(), "Print Graph...");
  // The File menu's save now saves the picture.
  const std::string png = (d.dir.Path() / "menu.png").string();
  d.platform.SaveNames.push_back(png);
  d.window.Trigger("salvar_Click");
  ASSERT_FALSE(d.platform.SaveDialogs.empty());
  EXPECT_EQ(d.platform.SaveDialogs.back().Title, "Save Graphic");
  EXPECT_EQ(Head(png, 4), "\x89PNG");
  // Another window takes the focus: the captions and the command turn back.
  SetGraphFocus(d.window, false);
  EXPECT_EQ(d.window.ActionFor("salvar_Click")->text(), "&Save Current Output...");
  EXPECT_EQ(d.window.ActionFor("printout_Click")->text(), "&Print Output...");
  d.window.Trigger("salvar_Click");
  EXPECT_NE(d.platform.SaveDialogs.back().Title, "Save Graphic");
}

TEST(GraphWindowTest, HiddenByANewRunAndByClosingTheFile) {
  Desk d;
  d.RunWindows();
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  SetGraphFocus(d.window, true);
  // A run without a window leaves no chart: the old one may not be shown.
  ASSERT_TRUE(
      test::RunWith(CommandId::kDnaPolymorphism, d.window.Bench(), DnaPolOptions{}).Stands);
  d.window.Refresh();
  EXPECT_FALSE(d.window.Shows(graph));
  EXPECT_FALSE(GraphHasFocus(d.window));
  EXPECT_EQ(d.window.ActionFor("salvar_Click")->text(), "&Save Current Output...");
  d.RunWindows();
  d.Open();
  EXPECT_TRUE(d.window.Shows(graph));
  ASSERT_TRUE(d.window.Bench().CloseFile(false));
  d.window.Refresh();
  EXPECT_FALSE(d.window.Shows(graph));
}

TEST(GraphWindowTest, ANewChartReplacesTheOneShown) {
  Desk d;
  d.RunWindows();
  GraphWindow* graph = d.Open();
  ASSERT_NE(graph, nullptr);
  NeutralityOptions options;
  options.SlidingOn = true;
  ASSERT_TRUE(test::RunWith(CommandId::kTajima, d.window.Bench(), options).Stands);
  d.window.Refresh();
  EXPECT_TRUE(d.window.Shows(graph));
  EXPECT_EQ(graph->Graph().GraphKind, 5);
  ASSERT_EQ(graph->Chooser()->count(), 1);
  EXPECT_EQ(graph->Chooser()->itemText(0), "D");
}

TEST(GraphWindowTest, KindOutsideTheFamiliesShowsNothingAndSaysNothing) {
  Desk d;
  GraphWindow graph(d.window.Bench());
  for (int16_t kind : {0, 17, -1}) {
    GraphData g;
    g.GraphKind = kind;
    g.Table = WindowTable(2, 5);
    g.GraphRows = 2;
    graph.ShowGraph(g);
    EXPECT_FALSE(graph.Picture().HasChart) << kind;
    EXPECT_EQ(graph.Chooser()->count(), 0);
  }
  EXPECT_TRUE(d.platform.Boxes.empty());
}

GraphData Linkage(bool any_significant) {
  GraphData g;
  g.GraphKind = kGraphLinkage;
  g.Table = WindowTable(30, 9);
  for (int32_t r = 1; r <= 30; ++r) {
    g.Table.at(r, 1) = static_cast<float>(r * 17 % 300);
    for (int32_t c = 2; c <= 7; ++c)
      g.Table.at(r, c) = static_cast<float>(0.9 - 0.002 * (r * 17 % 300) + 0.01 * (r % 5));
    g.Table.at(r, 8) = any_significant && r % 3 == 0 ? 1.0f : 0.0f;
  }
  g.Table.RowsUsed = g.GraphRows = 30;
  return g;
}

TEST(GraphWindowTest, SignButtonOfTheLinkageChart) {
  Desk d;
  GraphWindow graph(d.window.Bench());
  graph.show();
  graph.ShowGraph(Linkage(false));
  EXPECT_TRUE(graph.SignButton()->isVisible());
  EXPECT_EQ(graph.Chooser()->count(), 6);
  graph.SignButton()->setChecked(true);
  EXPECT_TRUE(d.Said("There are 0 significant values"));
  // Another series with "Sign" still down redraws without saying it again.
  const size_t said = d.platform.Boxes.size();
  graph.Chooser()->setCurrentIndex(3);
  EXPECT_EQ(d.platform.Boxes.size(), said);
  graph.ShowGraph(Linkage(true));
  EXPECT_FALSE(graph.SignButton()->isChecked());
  const size_t boxes = d.platform.Boxes.size();
  graph.SignButton()->setChecked(true);
  EXPECT_EQ(d.platform.Boxes.size(), boxes);
}

// Pictures for the lead: OVELT_SHOTS=<dir> writes graphs_<chart>.png of the window.
TEST(GraphWindowTest, Screenshots) {
  const char* shots = std::getenv("OVELT_SHOTS");
  if (shots == nullptr) GTEST_SKIP() << "OVELT_SHOTS not set";
  const std::string dir = shots;
  Desk d;
  Workbench& wb = d.window.Bench();
  auto save = [&](const std::string& name) {
    d.window.Refresh();
    GraphWindow* graph = d.Open();
    ASSERT_NE(graph, nullptr);
    QApplication::processEvents();
    EXPECT_TRUE(graph->grab().save(QString::fromStdString(dir + "/graphs_" + name + ".png")));
  };
  d.RunWindows();
  save("kind1_pi");
  {
    // The printed page, on an image of an A4 sheet at 100 dots per inch.
    QImage page(827, 1169, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    FindGraphWindow(d.window)->PaintPage(painter, page.rect().adjusted(60, 60, -60, -60));
    painter.end();
    EXPECT_TRUE(page.save(QString::fromStdString(dir + "/graphs_print_page.png")));
  }
  GraphWindow* chosen = FindGraphWindow(d.window);
  chosen->Chooser()->setCurrentIndex(2);
  chosen->Chooser()->showPopup();
  QApplication::processEvents();
  chosen->grab().save(QString::fromStdString(dir + "/graphs_kind1_s_chooser.png"));
  chosen->Chooser()->hidePopup();
  NeutralityOptions neutral;
  neutral.SlidingOn = true;
  ASSERT_TRUE(test::RunWith(CommandId::kTajima, wb, neutral).Stands);
  save("kind5_tajima");
  ASSERT_TRUE(test::RunWith(CommandId::kFuLi, wb, neutral).Stands);
  save("kind6_fu_li");
  ASSERT_TRUE(test::RunWith(CommandId::kSizeChanges, wb, SizeChangeOptions{}).Stands);
  save("kind15_mismatch");
  wb.Output().ResetOutputs();
  wb.Output().SetGraph(Linkage(true));
  d.window.Refresh();
  GraphWindow* graph = d.Open();
  graph->Chooser()->setCurrentIndex(5);
  graph->SignButton()->setChecked(true);
  QApplication::processEvents();
  graph->grab().save(QString::fromStdString(dir + "/graphs_kind3_linkage.png"));
  GraphData ratios;
  ratios.GraphKind = kGraphCodingRatios;
  ratios.Table = WindowTable(20, 4);
  for (int32_t r = 1; r <= 20; ++r) {
    ratios.Table.at(r, 1) = static_cast<float>(50 + 40 * r);
    ratios.Table.at(r, 2) = static_cast<float>(0.2 + 0.1 * (r % 4));
    ratios.Table.at(r, 3) = static_cast<float>(0.1 + 0.05 * (r % 6));
  }
  ratios.Table.RowsUsed = ratios.GraphRows = 20;
  wb.Output().ResetOutputs();
  wb.Output().SetGraph(ratios);
  d.window.Refresh();
  graph = d.Open();
  graph->Chooser()->setCurrentIndex(2);
  QApplication::processEvents();
  graph->grab().save(QString::fromStdString(dir + "/graphs_kind16_ratios.png"));
}

}  // namespace
}  // namespace ovelt

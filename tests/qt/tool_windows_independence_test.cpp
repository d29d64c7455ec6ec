#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "support/hand_math.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/independence_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text_window.h"

namespace ovelt {
namespace {

using testing::Choose;
using testing::Fixed;
using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;

// Fisher's exact test by enumeration of every table with the observed margins. The first tail
// runs from the observed a to the extreme in the direction a lies from its expectation; the
// second is added from the other extreme inward while its sum stays within the first tail.
struct FisherTails {
  double one = 0;
  double two = 0;
};
FisherTails FisherByEnumeration(int a, int b, int c, int d) {
  const int r1 = a + b, c1 = a + c, n = a + b + c + d;
  const int low = std::max(0, c1 - (n - r1)), high = std::min(r1, c1);
  std::vector<double> p(high + 1, 0.0);
  for (int x = low; x <= high; ++x)
    p[x] = Choose(c1, x) * Choose(n - c1, r1 - x) / Choose(n, r1);
  const bool upward = a * d - b * c >= 0;
  FisherTails t;
  for (int x = a; upward ? x <= high : x >= low; x += upward ? 1 : -1) t.one += p[x];
  double other = 0;
  for (int x = upward ? low : high; upward ? x < a : x > a; x += upward ? 1 : -1) {
    if (other + p[x] > t.one * (1 + 1e-12)) break;
    other += p[x];
  }
  t.two = std::min(1.0, t.one + other);
  return t;
}

class IndependenceWindowTest : public ::testing::Test {
 protected:
  IndependenceWindowTest() : wb(p) {}
  void Type(IndependenceWindow& w, const std::vector<std::string>& cells) {
    for (int i = 0; i < 4; ++i) w.Cell(i)->setText(QString::fromStdString(cells[i]));
  }
  TempDir dir;
  ScriptedPlatform p;
  Workbench wb;
};

TEST_F(IndependenceWindowTest, OpensWithTheDefaultTableAndItsTotals) {
  IndependenceWindow w(wb);
  EXPECT_EQ(w.windowTitle(), "Tests of Independence");
  const IndependenceOptions defaults = F12DefectValues();
  EXPECT_EQ(w.Cell(0)->text().toStdString(), defaults.A);
  EXPECT_EQ(w.Cell(3)->text().toStdString(), defaults.D);
  Type(w, {"7", "2", "4", "11"});
  EXPECT_EQ(w.RowTotal(1), "9");
  EXPECT_EQ(w.RowTotal(2), "15");
  EXPECT_EQ(w.ColumnTotal(1), "11");
  EXPECT_EQ(w.ColumnTotal(2), "13");
  EXPECT_EQ(w.GrandTotal(), "24");
  EXPECT_FALSE(w.SaveButton()->isEnabled());
  EXPECT_FALSE(w.PrintButton()->isEnabled());
}

// 3 1 / 1 3: every margin is 4, so each expected count is 2.
TEST_F(IndependenceWindowTest, ReportShowsTheTestsOfATableWorkedByHand) {
  IndependenceWindow w(wb);
  Type(w, {"3", "1", "1", "3"});
  w.ComputeButton()->click();
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
  const std::string report = w.ReportText().toStdString();

  const FisherTails fisher = FisherByEnumeration(3, 1, 1, 3);
  EXPECT_NEAR(fisher.one, 17.0 / 70.0, 1e-12);  // (16 + 1) / C(8, 4)
  EXPECT_NEAR(fisher.two, 34.0 / 70.0, 1e-12);
  // Pearson: four cells of (1)^2 / 2; Yates: four of (1 - 0.5)^2 / 2; G: 2 sum O ln(O / E).
  const double chi = 4 * 1.0 / 2, yates = 4 * 0.25 / 2;
  const double g = 2 * (2 * 3 * std::log(1.5) + 2 * 1 * std::log(0.5));
  // Upper tail of chi-square with one degree of freedom: erfc(sqrt(x / 2)).
  auto tail = [](double x) { return std::erfc(std::sqrt(x / 2)); };

  const std::string expected =
      " ====== Input Tabla ======\n"
      "      3     1\n"
      "      1     3\n"
      " ======== Output ========\n"
      "Fisher's Exact test\n"
      "One-tailed test, P-value: " + Fixed(fisher.one, 6) + "  (not significant)\n"
      "Two-tailed test, P-value: " + Fixed(fisher.two, 6) + "  (not significant)\n"
      "Chi-Squared test\n"
      "Chi-square value: " + Fixed(chi, 3) + "      P-value: " + Fixed(tail(chi), 5) +
      "  (not significant)\n"
      "Chi-square with Yates' correction: " + Fixed(yates, 3) + "      P-value: " +
      Fixed(tail(yates), 5) + "  (not significant)\n"
      "G-test\n"
      "G value: " + Fixed(g, 3) + "      P-value: " + Fixed(tail(g), 5) + "  (not significant)\n";
  EXPECT_EQ(report.substr(0, expected.size()), expected) << report;
  EXPECT_NE(report.find("G with Williams' correction: "), std::string::npos);
  EXPECT_NE(report.find("G with Yates' correction: "), std::string::npos);
  EXPECT_TRUE(w.SaveButton()->isEnabled());
  EXPECT_TRUE(w.PrintButton()->isEnabled());
  EXPECT_NE(std::find(p.StatusTexts.begin(), p.StatusTexts.end(), "Computing Independence Tests..."),
            p.StatusTexts.end());
}

TEST_F(IndependenceWindowTest, RefusalsShowTheirBoxAndKeepTheWindowAsItWas) {
  IndependenceWindow w(wb);
  Type(w, {"3", "1", "1", "3"});
  w.ComputeButton()->click();
  const QString report = w.ReportText();

  Type(w, {"3", "x", "1", "3"});
  w.ComputeButton()->click();
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Invalid number");
  EXPECT_EQ(p.Boxes[0].Title, " Invalid Selection ");
  EXPECT_EQ(w.ReportText(), report);
  EXPECT_EQ(w.Cell(1)->text(), "x");
  EXPECT_EQ(w.RowTotal(1), "");

  Type(w, {"3", "", "1", "3"});
  w.ComputeButton()->click();
  EXPECT_EQ(p.LastBox(), "Missing data");
  Type(w, {"0", "0", "5", "5"});
  w.ComputeButton()->click();
  EXPECT_EQ(p.LastBox(), "This table can not be computed");
  Type(w, {"20000", "12767", "0", "0"});
  w.ComputeButton()->click();
  EXPECT_EQ(p.LastBox(), "The total must be lower than 32767");
  Type(w, {"1", "-1", "1", "1"});
  w.ComputeButton()->click();
  EXPECT_EQ(p.LastBox(), "The minimum number of polymorphic sites or differences is 0");
  EXPECT_EQ(w.ReportText(), report);
}

TEST_F(IndependenceWindowTest, SaveOutputWritesTheReportWithCrLfLineEnds) {
  IndependenceWindow w(wb);
  Type(w, {"3", "1", "1", "3"});
  w.ComputeButton()->click();
  const std::string file = dir.File("tests.out");
  p.SaveNames.push_back(file);
  w.SaveButton()->click();
  ASSERT_EQ(p.SaveDialogs.size(), 1u);
  EXPECT_EQ(p.SaveDialogs[0].Title, "Save Output on File");
  const std::string saved = ReadBytes(file);
  EXPECT_NE(saved.find("Tests of Independence"), std::string::npos) << saved;
  EXPECT_NE(saved.find(" ====== Input Tabla ======\r\n      3     1\r\n"), std::string::npos);
  EXPECT_NE(saved.find("Two-tailed test, P-value: 0.485714"), std::string::npos);
}

TEST_F(IndependenceWindowTest, AnOpenSessionFileReceivesTheResult) {
  const std::string session = dir.File("session.out");
  ASSERT_TRUE(wb.Output().SendAllOutput(session));
  IndependenceWindow w(wb);
  Type(w, {"3", "1", "1", "3"});
  w.ComputeButton()->click();
  ASSERT_TRUE(wb.Output().CloseSessionFile());
  const std::string written = ReadBytes(session);
  EXPECT_NE(written.find("One-tailed test, P-value: 0.242857"), std::string::npos) << written;
}

TEST_F(IndependenceWindowTest, PrintOutputPrintsAndSaysWhenThePrinterFails) {
  IndependenceWindow w(wb);
  w.ComputeButton()->click();
  const std::string pdf = dir.File("print.pdf");
  w.SetPrinterChooser([&pdf](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf));
    return true;
  });
  w.PrintButton()->click();
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
  EXPECT_EQ(ReadBytes(pdf).substr(0, 5), "%PDF-");

  w.SetPrinterChooser([this](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(dir.File("missing/dir/print.pdf")));
    return true;
  });
  w.PrintButton()->click();
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Printer Error");
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
}

TEST(IndependenceMenu, ToolsMenuOpensTheWindowWithoutADataFile) {
  ScriptedPlatform p;
  TempDir dir;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuIndependence_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "Tests of &Independence: 2 x 2 table...");
  EXPECT_TRUE(action->isVisible());
  EXPECT_TRUE(action->isEnabled());

  int16_t analysis_while_open = 0;
  QTimer::singleShot(0, [&] {
    auto* w = qobject_cast<IndependenceWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(w, nullptr);
    analysis_while_open = window.Bench().Data().Analysis;
    w->Cell(0)->setText("3");
    w->Cell(1)->setText("1");
    w->Cell(2)->setText("1");
    w->Cell(3)->setText("3");
    w->ComputeButton()->click();
    w->CancelButton()->click();
  });
  action->trigger();
  EXPECT_EQ(analysis_while_open, 41);
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
  // The result stands in the output channel, as any analysis's does.
  EXPECT_TRUE(window.Text()->Report().contains("Two-tailed test, P-value: 0.485714"));
}

}  // namespace
}  // namespace ovelt

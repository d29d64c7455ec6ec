#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <string>

#include "support/hand_math.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/distributions_window.h"
#include "ui/qt/main_window.h"

namespace ovelt {
namespace {

using testing::Choose;
using testing::Fixed;
using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;

class DistributionsWindowTest : public ::testing::Test {
 protected:
  DistributionsWindowTest() : wb(p), w(wb) {}
  void Set(DistributionTab tab, const std::string& key, const std::string& text) {
    QLineEdit* box = w.Box(tab, key);
    ASSERT_NE(box, nullptr) << key;
    box->setText(QString::fromStdString(text));
  }
  // Shows the tab and presses the button that computes.
  std::string Compute(DistributionTab tab) {
    w.Tabs()->setCurrentIndex(static_cast<int>(tab));
    w.ComputeButton()->click();
    return w.ReportText().toStdString();
  }
  ScriptedPlatform p;
  Workbench wb;
  DistributionsWindow w;
};

TEST_F(DistributionsWindowTest, TabsAndBoxLabelsInTheirOrder) {
  EXPECT_EQ(w.windowTitle(), "Discrete Distributions");
  ASSERT_EQ(w.Tabs()->count(), 4);
  EXPECT_EQ(w.Tabs()->tabText(0), "Binomial Distribution");
  EXPECT_EQ(w.Tabs()->tabText(1), "Hypergeometric Distribution");
  EXPECT_EQ(w.Tabs()->tabText(2), "Poisson Distribution");
  EXPECT_EQ(w.Tabs()->tabText(3), "Ewens Distribution");
  QStringList labels;
  for (auto* label : w.Tabs()->widget(0)->findChildren<QLabel*>()) labels << label->text();
  EXPECT_EQ(labels, (QStringList{"Value of  p:", "Value of  n:", "Value of  k:"}));
  labels.clear();
  for (auto* label : w.Tabs()->widget(3)->findChildren<QLabel*>()) labels << label->text();
  EXPECT_EQ(labels,
            (QStringList{"Sample Size:", "NHap, Number of Haplotypes:", "Value of Theta:"}));
  EXPECT_EQ(w.SaveButton()->text(), "Save Output");
  EXPECT_EQ(w.PrintButton()->text(), "Print Output");
  EXPECT_EQ(w.CancelButton()->text(), "Cancel");
}

// p = 0.3, n = 5, k = 2 (typed with a decimal comma).
TEST_F(DistributionsWindowTest, BinomialByDirectProducts) {
  Set(DistributionTab::kBinomial, "p", "0,3");
  Set(DistributionTab::kBinomial, "n", "5");
  Set(DistributionTab::kBinomial, "k", "2");
  const std::string report = Compute(DistributionTab::kBinomial);
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
  const double equal = 10 * 0.3 * 0.3 * 0.7 * 0.7 * 0.7;           // C(5, 2) p^2 q^3
  const double less = 0.7 * 0.7 * 0.7 * 0.7 * 0.7 + 5 * 0.3 * 0.7 * 0.7 * 0.7 * 0.7;
  const double mean = 5 * 0.3, variance = 5 * 0.3 * 0.7;
  const std::string expected = " ====== Input Data ======\n"
                               " Value of p: 0.3\n"
                               " Value of n: 5\n"
                               " Value of k: 2\n"
                               " ======== Output ========\n"
                               " P [X = 2] = " + Fixed(equal, 6) + "\n"
                               " P [X < 2] = " + Fixed(less, 6) + "\n"
                               " Expected value, E[X] = " + Fixed(mean, 3) + "\n"
                               " Variance, var [X] = " + Fixed(variance, 3) + "   (SD = " +
                               Fixed(std::sqrt(variance), 3) + ")\n";
  EXPECT_EQ(report, expected);
  EXPECT_TRUE(w.SaveButton()->isEnabled());
}

// A population of 20 with 10 of the counted kind; a sample of 5 with 2 of them.
TEST_F(DistributionsWindowTest, HypergeometricByBinomialCoefficients) {
  const std::string report = [&] {
    Set(DistributionTab::kHypergeometric, "population", "20");
    Set(DistributionTab::kHypergeometric, "successes", "10");
    Set(DistributionTab::kHypergeometric, "n", "5");
    Set(DistributionTab::kHypergeometric, "k", "2");
    return Compute(DistributionTab::kHypergeometric);
  }();
  auto p_at = [](int k) { return Choose(10, k) * Choose(10, 5 - k) / Choose(20, 5); };
  EXPECT_NE(report.find(" P [X = 2] = " + Fixed(p_at(2), 6) + "\n"), std::string::npos)
      << report;
  EXPECT_NE(report.find(" P [X < 2] = " + Fixed(p_at(0) + p_at(1), 6) + "\n"), std::string::npos);
  // Mean n K / N = 2.5; variance n (K/N)(1 - K/N)(N - n)/(N - 1) = 5 * 0.25 * 15 / 19.
  EXPECT_NE(report.find(" Expected value, E[X] = 2.500\n"), std::string::npos);
  EXPECT_NE(report.find(" Variance, var [X] = " + Fixed(5 * 0.25 * 15.0 / 19.0, 3)),
            std::string::npos);
}

TEST_F(DistributionsWindowTest, PoissonByTheSeries) {
  Set(DistributionTab::kPoisson, "lambda", "2");
  Set(DistributionTab::kPoisson, "k", "3");
  const std::string report = Compute(DistributionTab::kPoisson);
  const double e = std::exp(-2.0);
  EXPECT_NE(report.find(" Value of lambda: 2\n"), std::string::npos) << report;
  EXPECT_NE(report.find(" P [X = 3] = " + Fixed(e * 8 / 6, 6) + "\n"), std::string::npos);
  EXPECT_NE(report.find(" P [X < 3] = " + Fixed(e * (1 + 2 + 2), 6) + "\n"), std::string::npos);
  EXPECT_NE(report.find(" Variance, var [X] = 2.000   (SD = " + Fixed(std::sqrt(2.0), 3) + ")"),
            std::string::npos);
}

// n = 3, theta = 1: |s(3, k)| = 2, 3, 1 over the rising factorial 6.
TEST_F(DistributionsWindowTest, EwensOfASmallSampleByStirlingNumbers) {
  Set(DistributionTab::kEwens, "sample-size", "3");
  Set(DistributionTab::kEwens, "nhap", "2");
  Set(DistributionTab::kEwens, "theta", "1");
  const std::string report = Compute(DistributionTab::kEwens);
  const std::string expected = " ====== Input Data ======\n"
                               " Sample Size: 3\n"
                               " NHap, Number of Haplotypes: 2\n"
                               " Value of Theta: 1\n"
                               " ======== Output ========\n"
                               " P [NHap = 2] = " + Fixed(3.0 / 6, 4) + "\n"
                               " Strobeck's S statistic: " + Fixed(5.0 / 6, 4) +
                               "   (P [NHap <= 2])\n"
                               " Expected value, E[NHap] = " + Fixed(1 + 1.0 / 2 + 1.0 / 3, 4) +
                               "\n"
                               " Fu's Fs statistic: " + Fixed(std::log((4.0 / 6) / (2.0 / 6)), 4) +
                               "\n";
  EXPECT_EQ(report, expected);
}

TEST_F(DistributionsWindowTest, RefusalsLeaveTheWindowAndTheReportAsTheyWere) {
  const std::string before = Compute(DistributionTab::kBinomial);
  auto refused = [&](DistributionTab tab, const std::string& key, const std::string& text) {
    const std::string old = w.Box(tab, key)->text().toStdString();
    Set(tab, key, text);
    const size_t boxes = p.Boxes.size();
    EXPECT_EQ(Compute(tab), before);
    EXPECT_EQ(p.Boxes.size(), boxes + 1);
    EXPECT_EQ(p.Boxes.back().Title, "Ovelt");
    const std::string message = p.LastBox();
    Set(tab, key, old);
    return message;
  };
  EXPECT_EQ(refused(DistributionTab::kBinomial, "p", "1"), "The p-value must be lower than 1");
  EXPECT_EQ(refused(DistributionTab::kBinomial, "p", "0"), "The p-value must be higher than 0");
  EXPECT_EQ(refused(DistributionTab::kBinomial, "p", ""), "Missing data");
  EXPECT_EQ(refused(DistributionTab::kBinomial, "n", "abc"), "Invalid number");
  EXPECT_EQ(refused(DistributionTab::kBinomial, "n", "32767"),
            "The total number of elements must be lower than 32767");
  EXPECT_EQ(refused(DistributionTab::kPoisson, "lambda", "0"),
            "The lambda value must be higher than 0");
  EXPECT_EQ(refused(DistributionTab::kEwens, "theta", "0"), "Theta must be higher than 0");
  EXPECT_EQ(refused(DistributionTab::kEwens, "sample-size", "501"),
            "The sample size must be lower than 501");
  EXPECT_EQ(refused(DistributionTab::kEwens, "nhap", "11"),
            "The total number of haplotypes must be equal or lower than the sample size");
}

TEST_F(DistributionsWindowTest, ASampleOf500IsAccepted) {
  Set(DistributionTab::kEwens, "sample-size", "500");
  Set(DistributionTab::kEwens, "nhap", "30");
  Set(DistributionTab::kEwens, "theta", "5");
  const std::string report = Compute(DistributionTab::kEwens);
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
  EXPECT_NE(report.find(" Sample Size: 500\n"), std::string::npos) << report;
  // E[NHap] = sum of theta / (theta + i), i = 0 .. 499.
  double expected = 0;
  for (int i = 0; i < 500; ++i) expected += 5.0 / (5.0 + i);
  EXPECT_NE(report.find(" Expected value, E[NHap] = " + Fixed(expected, 4)), std::string::npos);
}

TEST_F(DistributionsWindowTest, SaveOutputWritesTheTabsReport) {
  TempDir dir;
  Set(DistributionTab::kPoisson, "lambda", "2");
  Set(DistributionTab::kPoisson, "k", "3");
  Compute(DistributionTab::kPoisson);
  const std::string file = dir.File("poisson.out");
  p.SaveNames.push_back(file);
  w.SaveButton()->click();
  const std::string saved = ReadBytes(file);
  EXPECT_NE(saved.find("Discrete Distributions"), std::string::npos) << saved;
  EXPECT_NE(saved.find(" Value of lambda: 2\r\n Value of k: 3\r\n"), std::string::npos);
}

TEST(DistributionsMenu, ToolsMenuRunsTheCommandWhileTheWindowIsOpen) {
  ScriptedPlatform p;
  TempDir dir;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuDDistributions_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "&Discrete Distributions...");
  EXPECT_TRUE(action->isVisible());
  int16_t analysis_while_open = 0;
  std::string report;
  QTimer::singleShot(0, [&] {
    auto* w = qobject_cast<DistributionsWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(w, nullptr);
    analysis_while_open = window.Bench().Data().Analysis;
    w->ComputeButton()->click();
    report = w->ReportText().toStdString();
    w->CancelButton()->click();
  });
  action->trigger();
  EXPECT_EQ(analysis_while_open, 42);
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
  EXPECT_NE(report.find(" ======== Output ========"), std::string::npos) << report;
}

}  // namespace
}  // namespace ovelt

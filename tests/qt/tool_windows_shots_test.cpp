// Pictures of the calculator windows with a result showing, for a person to look at. Runs only
// when OVELT_SHOTS names a directory; otherwise the test is skipped.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "ui/qt/calculator_window.h"
#include "ui/qt/distributions_window.h"
#include "ui/qt/independence_window.h"
#include "ui/qt/tool_windows_coalescent.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;

void Save(QWidget& widget, const std::string& dir, const std::string& name) {
  widget.show();
  QApplication::processEvents();
  const std::string file = dir + "/toolwin_" + name + ".png";
  EXPECT_TRUE(widget.grab().save(QString::fromStdString(file))) << file;
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(ToolWindowShots, EachWindowWithAResult) {
  const char* dir = std::getenv("OVELT_SHOTS");
  if (dir == nullptr || *dir == '\0') GTEST_SKIP() << "OVELT_SHOTS is not set";
  ScriptedPlatform p;
  Workbench wb(p);

  IndependenceWindow independence(wb);
  const char* cells[] = {"12", "5", "3", "10"};
  for (int i = 0; i < 4; ++i) independence.Cell(i)->setText(cells[i]);
  independence.ComputeButton()->click();
  Save(independence, dir, "independence");

  DistributionsWindow distributions(wb);
  distributions.Box(DistributionTab::kBinomial, "p")->setText("0.3");
  distributions.ComputeButton()->click();
  Save(distributions, dir, "distributions_binomial");
  distributions.Tabs()->setCurrentIndex(static_cast<int>(DistributionTab::kPoisson));
  distributions.Box(DistributionTab::kPoisson, "lambda")->setText("2,5");
  distributions.ComputeButton()->click();
  Save(distributions, dir, "distributions_poisson");
  distributions.Tabs()->setCurrentIndex(static_cast<int>(DistributionTab::kEwens));
  distributions.Box(DistributionTab::kEwens, "sample-size")->setText("20");
  distributions.Box(DistributionTab::kEwens, "nhap")->setText("5");
  distributions.Box(DistributionTab::kEwens, "theta")->setText("3.5");
  distributions.ComputeButton()->click();
  Save(distributions, dir, "distributions_ewens");

  CoalescentWindow coalescent(wb, [] { return 5171; });
  coalescent.GivenBox()->setText("8");
  coalescent.ReplicatesBox()->setText("500");
  coalescent.Statistics()->setCurrentIndex(8);  // Tajima's D
  coalescent.ObservedBox()->setText("-1.2");
  coalescent.RunButton()->click();
  Save(coalescent, dir, "coalescent");

  CalculatorWindow calculator(p, '.');
  for (const char* key : {"2", "sqrt"}) calculator.Key(key)->click();
  Save(calculator, dir, "calculator");
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
}

}  // namespace
}  // namespace ovelt

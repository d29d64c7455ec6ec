#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>
#include <string>

#include "support/hand_math.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text_window.h"
#include "ui/qt/tool_windows_coalescent.h"

namespace ovelt {
namespace {

using testing::Fixed;
using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;

class CoalescentWindowTest : public ::testing::Test {
 protected:
  CoalescentWindowTest() : wb(p), w(wb, [this] { return next_seed++; }) {
    w.SetSecondWait([this](const QTime&) { ++second_waits; });
  }
  void Choose(const QString& name) {
    const int index = w.Statistics()->findText(name);
    ASSERT_GE(index, 0) << name.toStdString();
    w.Statistics()->setCurrentIndex(index);
  }
  ScriptedPlatform p;
  Workbench wb;
  int32_t next_seed = 4242;
  int second_waits = 0;
  CoalescentWindow w;
};

TEST(CoalescentWindowClock, TheWaitEndsInTheNextSecond) {
  const QTime started = QTime::currentTime();
  WaitForTheNextSecond(started);
  EXPECT_NE(QTime::currentTime().second(), started.second());
}

TEST_F(CoalescentWindowTest, OnlyAFinishedRunWaitsForTheNextSecond) {
  w.SampleSizeBox()->setText("1");
  w.RunButton()->click();
  EXPECT_EQ(second_waits, 0);
  w.SampleSizeBox()->setText("10");
  w.ReplicatesBox()->setText("20");
  w.RunButton()->click();
  EXPECT_EQ(second_waits, 1);
}

TEST_F(CoalescentWindowTest, OpensWithTheDefaultsAndASuggestedSeed) {
  EXPECT_EQ(w.windowTitle(), "The Coalescent");
  EXPECT_TRUE(w.ThetaOption()->isChecked());
  EXPECT_EQ(w.GivenLabel()->text(), "Theta (per gene): ");
  EXPECT_EQ(w.GivenBox()->text(), "12");
  EXPECT_EQ(w.SampleSizeBox()->text(), "10");
  EXPECT_EQ(w.ReplicatesBox()->text(), "1000");
  EXPECT_EQ(w.ObservedBox()->text(), "0");
  EXPECT_EQ(w.PercentBox()->text(), "95");
  EXPECT_EQ(w.SeedBox()->text(), "4242");
  EXPECT_TRUE(w.RecombinationOption(0)->isChecked());
  EXPECT_FALSE(w.RBox()->isEnabled());
  EXPECT_FALSE(w.SitesBox()->isEnabled());
  EXPECT_EQ(w.Statistics()->count(), 19);
  EXPECT_EQ(w.Statistics()->itemText(0), "Haplotype Diversity, Hd");
  EXPECT_EQ(w.Statistics()->itemText(18), "Corvel and Valdor's R2");
  EXPECT_EQ(w.HeadingText(), "Results of Haplotype Diversity, Hd");
}

TEST_F(CoalescentWindowTest, TheResultsAreaFollowsTheStatistic) {
  Choose("Number of Haplotypes, h");
  EXPECT_EQ(w.HeadingText(), "Results of the number of Haplotypes, h");
  EXPECT_EQ(w.ObservedLabel(), "h(obs), value:");
  EXPECT_EQ(w.ProbabilityLabel(), "P [h <= h(obs)]:");
  EXPECT_EQ(w.AverageLabel(), "Average value of h:");
  Choose("Corvel and Valdor's R2");
  EXPECT_EQ(w.HeadingText(), "Results of R2");
  Choose("Fu and Li's D*");
  EXPECT_EQ(w.ProbabilityLabel(), "P [D* <= D*(obs)]:");
}

TEST_F(CoalescentWindowTest, AnObservedValueOutsideTheStatisticsRangeGoesBackToZero) {
  w.ObservedBox()->setText("1.5");
  emit w.ObservedBox()->editingFinished();
  EXPECT_EQ(w.ObservedBox()->text(), "0");  // Hd lies in [0, 1]
  Choose("Tajima's D");
  w.ObservedBox()->setText("-1.5");
  emit w.ObservedBox()->editingFinished();
  EXPECT_EQ(w.ObservedBox()->text(), "-1.5");
}

TEST_F(CoalescentWindowTest, SwitchingToSegregatingSitesOffersTheIntegerPartOfTheta) {
  w.GivenBox()->setText("7,9");
  w.SegSitesOption()->setChecked(true);
  EXPECT_EQ(w.GivenLabel()->text(), "Segregating Sites: ");
  EXPECT_EQ(w.GivenBox()->text(), "7");
  w.ThetaOption()->setChecked(true);
  w.GivenBox()->setText("0.4");
  w.SegSitesOption()->setChecked(true);
  EXPECT_EQ(w.GivenBox()->text(), "20");
}

TEST_F(CoalescentWindowTest, RAndSitesOnlyForTheIntermediateLevel) {
  w.RecombinationOption(2)->setChecked(true);
  EXPECT_TRUE(w.RBox()->isEnabled());
  EXPECT_TRUE(w.SitesBox()->isEnabled());
  w.RecombinationOption(1)->setChecked(true);
  EXPECT_FALSE(w.RBox()->isEnabled());
}

// With S given, Theta-W is S / a1 in every replicate: both limits and the average are that value.
TEST_F(CoalescentWindowTest, ThetaFromAGivenSIsSOverA1) {
  w.SegSitesOption()->setChecked(true);
  w.GivenBox()->setText("10");
  w.ReplicatesBox()->setText("50");
  Choose("Theta-W (from S)");
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text,
            "The empirical distribution of theta (from S) can not be generated fixing the number "
            "of segregating sites");
  w.RunButton()->click();
  ASSERT_EQ(p.Boxes.size(), 1u) << p.LastBox();
  double a1 = 0;
  for (int i = 1; i < 10; ++i) a1 += 1.0 / i;
  const QString value = QString::fromStdString(Fixed(10 / a1, 5));
  EXPECT_EQ(w.LowerLimit(), value);
  EXPECT_EQ(w.UpperLimit(), value);
  EXPECT_EQ(w.Average(), value);
  EXPECT_EQ(w.Probability(), "1.00000");  // the observed 0 is below S / a1
  EXPECT_EQ(w.FrameCaption(), "95 % Confidence Interval");
  EXPECT_EQ(w.ProbabilityLabel(), "P [Theta <= 0.0000]:");
  EXPECT_EQ(w.SeedBox()->text(), "4243");  // the next suggestion
  EXPECT_TRUE(w.SaveButton()->isEnabled());

  // Any change of an input clears the results and gives the labels back.
  w.ReplicatesBox()->setText("60");
  EXPECT_EQ(w.LowerLimit(), "");
  EXPECT_EQ(w.Probability(), "");
  EXPECT_EQ(w.ProbabilityLabel(), "P [Theta <= Theta(obs)]:");
  EXPECT_EQ(w.FrameCaption(), "Confidence Interval");
  EXPECT_FALSE(w.SaveButton()->isEnabled());
}

// One replicate at 95 %: k = 1, and both limits and the average are that replicate's value.
TEST_F(CoalescentWindowTest, OneReplicateGivesOneValueEverywhere) {
  w.GivenBox()->setText("5");
  w.ReplicatesBox()->setText("1");
  w.SeedBox()->setText("12345");
  w.RunButton()->click();
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
  EXPECT_FALSE(w.Average().isEmpty());
  EXPECT_EQ(w.LowerLimit(), w.Average());
  EXPECT_EQ(w.UpperLimit(), w.Average());
  EXPECT_EQ(w.Effective(), "1");
}

// A seed of 0 runs as 111295.
TEST_F(CoalescentWindowTest, SeedZeroRunsAsTheFixedSeed) {
  w.ReplicatesBox()->setText("200");
  w.SeedBox()->setText("0");
  w.RunButton()->click();
  const QString lower = w.LowerLimit(), upper = w.UpperLimit(), average = w.Average();
  w.SeedBox()->setText("111295");
  w.RunButton()->click();
  EXPECT_EQ(w.LowerLimit(), lower);
  EXPECT_EQ(w.UpperLimit(), upper);
  EXPECT_EQ(w.Average(), average);
  EXPECT_TRUE(wb.Output().TextBuffer.find("   Pseudorandom Number Seed: 111295") !=
              std::string::npos)
      << wb.Output().TextBuffer;
}

TEST_F(CoalescentWindowTest, ARefusalShowsItsBoxAndComputesNothing) {
  w.SampleSizeBox()->setText("501");
  w.RunButton()->click();
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Invalid Selection \n\nThe maximum number of sequences is 500");
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(w.Average(), "");
  EXPECT_EQ(w.SeedBox()->text(), "4242");
  EXPECT_FALSE(w.SaveButton()->isEnabled());
}

TEST_F(CoalescentWindowTest, SaveOutputWritesTheReport) {
  TempDir dir;
  w.ReplicatesBox()->setText("20");
  w.RunButton()->click();
  const std::string file = dir.File("coalescent.out");
  p.SaveNames.push_back(file);
  w.SaveButton()->click();
  const std::string saved = ReadBytes(file);
  EXPECT_NE(saved.find(" ====== Input Data ======\r\n"), std::string::npos) << saved;
  EXPECT_NE(saved.find("   Number of Replicates: 20\r\n"), std::string::npos) << saved;
}

TEST(CoalescentMenu, TheMenuEntryRunsCommand19InTheWindow) {
  ScriptedPlatform p;
  TempDir dir;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  const std::string file = dir.Write("four.fas", ">a\nACGTA\n>b\nACGTT\n>c\nACGAA\n>d\nTCGTA\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  QAction* action = window.ActionFor("MenuGeneCoal_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "&Coalescent Simulations...");
  EXPECT_TRUE(action->isVisible());
  int16_t analysis_while_open = 0;
  QTimer::singleShot(0, [&] {
    auto* w = qobject_cast<CoalescentWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(w, nullptr);
    analysis_while_open = window.Bench().Data().Analysis;
    w->ReplicatesBox()->setText("10");
    w->RunButton()->click();
    w->CancelButton()->click();
  });
  action->trigger();
  EXPECT_EQ(analysis_while_open, 19);
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
  EXPECT_TRUE(window.Text()->Report().contains("   Number of Replicates: 10"))
      << window.Text()->Report().toStdString();
}

}  // namespace
}  // namespace ovelt

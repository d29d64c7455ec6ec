#include "coalescent/coalescent_run.h"

#include <gtest/gtest.h>

#include "coalescent/simulation_report.h"
#include "coalescent/statistic_code.h"
#include "support/scripted_platform.h"

namespace ovelt {
namespace {

SimulationForm SmallForm(const std::string& seed) {
  SimulationForm f;
  f.ReplicatesText = "200";
  f.SeedText = seed;
  return f;
}

TEST(RunCoalescent, LeavesTheReportAsATextResult) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  CoalescentRun run;
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("5"), 1, &run));
  EXPECT_EQ(channel.TextBuffer, SimulationReportText(run.Input, run.Result));
  EXPECT_EQ(channel.ResultCode, 19);
  EXPECT_EQ(channel.RunFailed, 0);
  EXPECT_EQ(channel.GaugeValue(), 100);
  EXPECT_EQ(channel.StatusText(), "Coalescent Simulations");
  EXPECT_TRUE(channel.Windows().Text);
  EXPECT_EQ(run.Result.Seed, 5);
}

TEST(RunCoalescent, SameSeedPrintsTheSameReportAndSeedZeroIs111295) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("0")));
  const std::string zero = channel.TextBuffer;
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("0")));
  EXPECT_EQ(channel.TextBuffer, zero);
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("111295")));
  EXPECT_EQ(channel.TextBuffer, zero);
  EXPECT_NE(zero.find("   Pseudorandom Number Seed: 111295\r\n"), std::string::npos);
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("111296")));
  EXPECT_NE(channel.TextBuffer, zero);
}

TEST(RunCoalescent, ARefusalKeepsThePreviousOutputAndReopensTheDialog) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("1")));
  const std::string before = channel.TextBuffer;
  SimulationForm bad = SmallForm("1");
  bad.SampleSizeText = "1";
  const auto refusal = RunCoalescent(channel, bad);
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->Text, "Invalid Selection \n\nThe minimum number of sequences is two");
  EXPECT_EQ(refusal->Title, "Ovelt");
  EXPECT_EQ(channel.ReopenDialog, 1);
  EXPECT_EQ(channel.TextBuffer, before);
}

TEST(RunCoalescent, AnErrorInsideTheRunWritesNoReport) {
  // More segregating sites than the 1000 sites of the region cannot be ordered along it.
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  SimulationForm f = SmallForm("1");
  f.Given = GivenMode::kSegSites;
  f.GivenText = "1500";
  f.Statistic = kCodeZa;
  const auto error = RunCoalescent(channel, f);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Text.rfind("Error in the Coalescent Module: ", 0), 0u);
  EXPECT_EQ(channel.RunFailed, 1);
  EXPECT_EQ(channel.TextBuffer, "");
}

TEST(RunCoalescent, ASeedTheGeneratorCannotStartFromIsAnErrorOfTheModule) {
  // The seed variable is minus the seed; ran1 starts only from seed variables up to 54773.
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  const auto error = RunCoalescent(channel, SmallForm("-60000"));
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Text, "Error in the Coalescent Module: Invalid procedure call or argument");
  EXPECT_EQ(channel.RunFailed, 1);
  EXPECT_FALSE(RunCoalescent(channel, SmallForm("-54773")));
}

TEST(RunCoalescent, JsonHoldsTheInputsAndTheResults) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  CoalescentRun run;
  ASSERT_FALSE(RunCoalescent(channel, SmallForm("3"), 2, &run));
  JsonText json;
  WriteJson(json, run);
  EXPECT_NE(json.Text().find("\"statistic\""), std::string::npos);
  EXPECT_NE(json.Text().find("\"tajima-d\""), std::string::npos);
  EXPECT_NE(json.Text().find("\"effective_replicates\""), std::string::npos);
  EXPECT_NE(json.Text().find("\"threads\""), std::string::npos);
}

}  // namespace
}  // namespace ovelt

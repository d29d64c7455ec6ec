// The two calculators of the command table run through the one runner with no data file: what
// their results leave in the output channel, and that a refusal leaves the previous result and
// reopens the dialog.

#include <gtest/gtest.h>

#include <any>
#include <memory>

#include "coalescent/coalescent_options.h"
#include "coalescent/coalescent_run.h"
#include "coalescent/simulation_report.h"
#include "output/output_channel.h"
#include "polymorphism/run_fixture.h"
#include "shell/command_registry.h"
#include "shell/command_runner.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "tools/independence_options.h"
#include "tools/independence_report.h"
#include "tools/independence_tests.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

template <class Options>
RunOutcome RunTool(CommandId id, OutputChannel& channel, ScriptedPlatform& platform,
                   const Options& options, bool want_json = false) {
  TypedOptions<Options> typed(options);
  return RunCommand(nullptr, channel, platform, *FindEntry(id), typed, want_json);
}

std::string ReportOf(const TwoByTwoTable& table) {
  return IndependenceReportText(table, ComputeIndependence(table));
}

IndependenceOptions Cells(std::string a, std::string b, std::string c, std::string d) {
  IndependenceOptions o;
  o.A = std::move(a);
  o.B = std::move(b);
  o.C = std::move(c);
  o.D = std::move(d);
  return o;
}

TEST(IndependenceCommand, TheResultStandsInTheChannel) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_TRUE(RunTool(CommandId::kIndependence, channel, platform, Cells("3", "1", "1", "3")).Stands);
  EXPECT_EQ(channel.TextBuffer, ReportOf({3, 1, 1, 3}));
  EXPECT_EQ(channel.ResultCode, 40);
  EXPECT_EQ(channel.TextShown, 1);
  EXPECT_EQ(channel.ReopenDialog, 0);
  EXPECT_TRUE(channel.Commands().SaveEnabled);
  EXPECT_EQ(platform.StatusTexts.front(), "Computing Independence Tests...");
  EXPECT_EQ(channel.StatusText(), "For Help, press F1");
  EXPECT_TRUE(platform.Boxes.empty());
}

TEST(IndependenceCommand, ARefusalKeepsThePreviousResultAndTheDialog) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_TRUE(RunTool(CommandId::kIndependence, channel, platform, Cells("3", "1", "1", "3")).Stands);
  EXPECT_FALSE(RunTool(CommandId::kIndependence, channel, platform, Cells("3", "", "1", "3")).Stands);
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, "Missing data");
  EXPECT_EQ(platform.Boxes[0].Title, " Invalid Selection ");
  EXPECT_EQ(channel.ReopenDialog, 1);
  EXPECT_EQ(channel.TextBuffer, ReportOf({3, 1, 1, 3}));
}

TEST(IndependenceCommand, SavedAndSessionFilesHoldTheReport) {
  TempDir dir;
  ScriptedPlatform platform;
  const std::string session = dir.File("session.out");
  OutputChannel channel(platform);
  ASSERT_TRUE(channel.SendAllOutput(session));
  ASSERT_TRUE(RunTool(CommandId::kIndependence, channel, platform, Cells("3", "1", "1", "3")).Stands);
  const std::string saved = dir.File("saved.out");
  ASSERT_TRUE(channel.SaveCurrentOutput(saved));
  const std::string title_block = std::string("Tests of Independence \r\n") + " " +
                                  std::string(21, '-') + "\r\n" + ReportOf({3, 1, 1, 3}) + "\r\n";
  EXPECT_NE(testing::ReadBytes(saved).find(title_block), std::string::npos);
  // The session file takes its place when the session closes.
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_NE(
      testing::ReadBytes(session).find(title_block + std::string(38, '<') + std::string(38, '>')),
      std::string::npos)
      << testing::ReadBytes(session);
}

TEST(IndependenceCommand, ARunLeavesTheOpenFilesRegionAndResultAsTheyWere) {
  test::RunBench b({"ACGTACGTAC", "ACGTACGTAA", "ACGAACGTAC", "ACGTACCTAC"});
  b.ad.Region = {3, 7};
  b.ad.ResultCode = 5;
  TypedOptions<IndependenceOptions> typed(Cells("3", "1", "1", "3"));
  ASSERT_TRUE(
      RunCommand(&b.ad, b.channel, b.platform, *FindEntry(CommandId::kIndependence), typed).Stands);
  EXPECT_EQ(b.ad.Region.RegionFrom, 3);
  EXPECT_EQ(b.ad.Region.RegionTo, 7);
  EXPECT_EQ(b.ad.ResultCode, 5);
}

CoalescentOptions Small(const std::string& seed) {
  CoalescentOptions o;
  o.Replicates = "200";
  o.Seed = seed;
  return o;
}

TEST(CoalescentCommandRun, LeavesTheReportAsATextResultNamedOnTheStatusLine) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const RunOutcome outcome = RunTool(CommandId::kCoalescent, channel, platform, Small("5"));
  ASSERT_TRUE(outcome.Stands);
  const auto run = std::any_cast<std::shared_ptr<const CoalescentRun>>(outcome.Result);
  EXPECT_EQ(channel.TextBuffer, SimulationReportText(run->Input, run->Result));
  EXPECT_EQ(channel.ResultCode, 19);
  EXPECT_EQ(channel.RunFailed, 0);
  EXPECT_EQ(channel.GaugeValue(), 100);
  EXPECT_EQ(channel.StatusText(), "Coalescent Simulations");
  EXPECT_TRUE(channel.Windows().Text);
  EXPECT_EQ(platform.StatusTexts.front(), "Computing...");
}

TEST(CoalescentCommandRun, ARefusalKeepsThePreviousOutputAndReopensTheDialog) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_TRUE(RunTool(CommandId::kCoalescent, channel, platform, Small("1")).Stands);
  const std::string before = channel.TextBuffer;
  CoalescentOptions bad = Small("1");
  bad.SampleSize = "1";
  EXPECT_FALSE(RunTool(CommandId::kCoalescent, channel, platform, bad).Stands);
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, "Invalid Selection \n\nThe minimum number of sequences is two");
  EXPECT_EQ(platform.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(channel.ReopenDialog, 1);
  EXPECT_EQ(channel.TextBuffer, before);
}

TEST(CoalescentCommandRun, AnErrorInsideTheRunWritesNoReport) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  CoalescentOptions o = Small("1");
  o.SegSites = "1500";
  o.Statistic = "za";
  EXPECT_FALSE(RunTool(CommandId::kCoalescent, channel, platform, o).Stands);
  EXPECT_EQ(channel.RunFailed, 1);
  EXPECT_EQ(channel.TextBuffer, "");
  EXPECT_FALSE(channel.Windows().Text);
}

}  // namespace
}  // namespace ovelt

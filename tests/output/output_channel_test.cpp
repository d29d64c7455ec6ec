// The channel's state through the life of runs: reset, busy, gauge, result kinds, failures.

#include <gtest/gtest.h>

#include <algorithm>

#include "output/output_channel.h"
#include "output/too_big_prompt.h"
#include "support/scripted_platform.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;

TEST(OutputChannel, StartsIdle) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  EXPECT_EQ(channel.GridRows, 20);
  EXPECT_EQ(channel.SessionOpen, 0);
  EXPECT_EQ(channel.SessionFileNo, 0);
  EXPECT_EQ(channel.Commands().SaveCaption, "Save Current Output...");
  EXPECT_EQ(channel.Commands().SendAllCaption, "Send &All Output to File...");
  EXPECT_EQ(channel.Commands().CloseOutputCaption, "Close &Output File");
  EXPECT_FALSE(channel.Commands().CloseOutputEnabled);
}

TEST(OutputChannel, ResetOutputsEmptiesEverythingOfTheLastRun) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.AppendText("old text\r\n");
  channel.HeaderBlock = "old head";
  channel.Grid1.Rows = {{"1"}};
  channel.Grid2.Rows = {{"2"}};
  channel.GeneFlow.Rows = {{"a", "b", {"0.1"}}};
  channel.SetGridTextHead("custom");
  channel.ResultCode = 4;
  channel.Labels.Title = "Linkage Disequilibrium";
  channel.Labels.GridTextHead = "Site1  Site2   Dist     D       D'      R";
  channel.Used = {"North", 3, "South", 2};
  channel.ShowResult(kResultTextAndGrid);
  channel.ShowResult(kResultAddGraph);
  channel.RunFailed = 1;
  channel.ReopenDialog = 1;

  channel.ResetOutputs();

  EXPECT_EQ(channel.TextBuffer, "");
  EXPECT_EQ(channel.HeaderBlock, "");
  EXPECT_TRUE(channel.Grid1.Empty());
  EXPECT_TRUE(channel.Grid2.Empty());
  EXPECT_TRUE(channel.GeneFlow.Rows.empty());
  EXPECT_EQ(channel.TextShown + channel.GridShown + channel.Grid2Shown + channel.PermShown, 0);
  EXPECT_EQ(channel.GraphOn, 0);
  EXPECT_EQ(channel.RunFailed, 0);
  EXPECT_EQ(channel.ReopenDialog, 0);
  EXPECT_FALSE(channel.Windows().Text || channel.Windows().Grid || channel.Windows().Graph);
  EXPECT_EQ(channel.Commands().SaveCaption, "Save Current Output...");
  EXPECT_FALSE(channel.Commands().SaveEnabled);
  // The labels and sequences of the last result go with it.
  EXPECT_EQ(channel.Labels.Title, "");
  EXPECT_EQ(channel.GridTextHead(), "");
  EXPECT_EQ(channel.Used.FirstSet, "");
  EXPECT_EQ(channel.Used.FirstCount, 0);
  // The run's own head is gone: the head falls back to that of the labels of the next result.
  channel.Labels.GridTextHead = "Site1  Site2   Dist     D       D'      R";
  EXPECT_EQ(channel.GridTextHead(), "Site1  Site2   Dist     D       D'      R");
}

TEST(OutputChannel, BusyShowsTheCallersWordsAndIdleRestoresHelpLine) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.SetBusy(true, "Computing Haplotype Diversity...");
  EXPECT_TRUE(channel.GaugeVisible());
  EXPECT_EQ(channel.GaugeValue(), 0);
  EXPECT_FALSE(channel.Commands().IdleCommandsEnabled);
  channel.SetStatus("Computing Pi...");
  channel.SetBusy(false);
  EXPECT_FALSE(channel.GaugeVisible());
  EXPECT_TRUE(channel.Commands().IdleCommandsEnabled);
  EXPECT_EQ(platform.StatusTexts, (std::vector<std::string>{"Computing Haplotype Diversity...",
                                                             "Computing Pi...",
                                                             "For Help, press F1"}));
  EXPECT_EQ(platform.ProgressValues, std::vector<int>{0});
}

TEST(OutputChannel, GaugeNeverGoesDown) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.SetBusy(true, "Working...");
  for (int percent : {10, 40, 20, 40, 39, 70, 150, 90, -5}) channel.RaiseGauge(percent);
  EXPECT_EQ(channel.GaugeValue(), 100);
  EXPECT_EQ(platform.ProgressValues, (std::vector<int>{0, 10, 40, 70, 100}));
  EXPECT_TRUE(std::is_sorted(platform.ProgressValues.begin(), platform.ProgressValues.end()));
}

TEST(OutputChannel, AppendTextConcatenates) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.AppendText(" Input Data File: a.fas\r\n");
  channel.AppendText(" Number of sequences: 4");
  EXPECT_EQ(channel.TextBuffer, " Input Data File: a.fas\r\n Number of sequences: 4");
}

struct KindCase {
  int Kind;
  int16_t Text, Grid, Grid2, Graph;
};

TEST(OutputChannel, ResultKindsSetTheirWindows) {
  const KindCase kCases[] = {
      {kResultTextAndGrid, 1, 1, 0, 0},       {kResultGridOnly, 0, 1, 0, 0},
      {kResultTextOnly, 1, 0, 0, 0},          {kResultSecondGrid, 0, 0, 1, 0},
      {kResultTextAndSecondGrid, 1, 0, 1, 0}, {kResultGridAndGraph, 0, 1, 0, 1},
      {kResultAddGraph, 0, 0, 0, 1},          {kResultRemoveGraph, 0, 0, 0, 0},
      {kResultGraphButtons, 0, 0, 0, 0},
  };
  for (const auto& c : kCases) {
    ScriptedPlatform platform;
    OutputChannel channel(platform);
    channel.ShowResult(c.Kind);
    EXPECT_EQ(channel.TextShown, c.Text) << c.Kind;
    EXPECT_EQ(channel.GridShown, c.Grid) << c.Kind;
    EXPECT_EQ(channel.Grid2Shown, c.Grid2) << c.Kind;
    EXPECT_EQ(channel.GraphOn, c.Graph) << c.Kind;
    EXPECT_EQ(channel.Windows().Text, c.Text == 1) << c.Kind;
    EXPECT_EQ(channel.Windows().Grid, c.Grid == 1) << c.Kind;
    EXPECT_EQ(channel.Windows().Grid2, c.Grid2 == 1) << c.Kind;
    EXPECT_EQ(channel.Windows().Graph, c.Graph == 1) << c.Kind;
  }
}

TEST(OutputChannel, GraphButtonsAndGraphAddedThenRemoved) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ShowResult(kResultTextOnly);
  channel.ShowResult(kResultGraphButtonsToo);
  EXPECT_TRUE(channel.Commands().GraphButtonsEnabled);
  channel.ShowResult(kResultAddGraph);
  EXPECT_EQ(channel.GraphOn, 1);
  EXPECT_EQ(channel.TextShown, 1);  // the graph is added to what stands
  channel.ShowResult(kResultRemoveGraph);
  EXPECT_EQ(channel.GraphOn, 0);
  EXPECT_TRUE(channel.Windows().Text);
}

TEST(OutputChannel, AChartTurnsTheGraphButtonsOnUntilTheNextRun) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  EXPECT_FALSE(channel.Commands().GraphButtonsEnabled);
  channel.SetGraph(GraphData{});
  EXPECT_TRUE(channel.Commands().GraphButtonsEnabled);
  channel.ResetOutputs();
  EXPECT_FALSE(channel.Commands().GraphButtonsEnabled);
}

TEST(OutputChannel, UnknownKindChangesNothing) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ShowResult(50);
  channel.ShowResult(0);
  EXPECT_EQ(channel.TextShown + channel.GridShown + channel.Grid2Shown + channel.GraphOn, 0);
  EXPECT_FALSE(channel.Commands().SaveEnabled);
}

TEST(OutputChannel, FailedRunShowsNoResult) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.RunFailed = 1;
  channel.ShowResult(kResultTextAndGrid);
  EXPECT_EQ(channel.TextShown, 0);
  EXPECT_EQ(channel.GridShown, 0);
  EXPECT_FALSE(channel.Windows().Text);
}

TEST(OutputChannel, EndFailedRunHidesWindowsAndGivesIdleCommandsBack) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.SetBusy(true, "Computing...");
  channel.ShowResult(kResultGridAndGraph);
  channel.EndFailedRun();
  EXPECT_EQ(channel.GridShown, 0);
  EXPECT_EQ(channel.RunFailed, 1);
  EXPECT_FALSE(channel.Windows().Grid || channel.Windows().Graph || channel.Windows().Text);
  EXPECT_TRUE(channel.Commands().IdleCommandsEnabled);
  EXPECT_FALSE(channel.GaugeVisible());
  EXPECT_EQ(platform.StatusTexts.back(), "For Help, press F1");
}

TEST(OutputChannel, SaveDialogByResultCode) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ResultCode = 2;
  FileDialogRequest dialog = channel.SaveOutputDialog();
  EXPECT_EQ(dialog.Title, "Save Output on File");
  EXPECT_EQ(dialog.Filter, "Output Files (*.out) |*.out |All Files (*.*) |*.*");
  EXPECT_EQ(dialog.DefaultName, "*.out");
  channel.ResultCode = 18;
  dialog = channel.SaveOutputDialog();
  EXPECT_EQ(dialog.Filter,
            "Trelmo Data Files (*.tmo) |*.tmo|Output Files (*.out) |*.out|All Files (*.*) |*.*");
  EXPECT_EQ(dialog.DefaultName, "*.tmo");
  dialog = OutputChannel::SendAllOutputDialog();
  EXPECT_EQ(dialog.Title, "Save All Output on File");
  EXPECT_EQ(dialog.Filter, "Output Files (*.out) |*.out |All Files (*.*) |*.*");
}

TEST(OutputChannel, GridOfExactlyTheLimitIsShown) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const int64_t rows = kMaxPairwiseGridRows;
  ASSERT_FALSE(IsGridTooBig(rows));
  channel.Grid1.Rows.assign(static_cast<size_t>(rows), {"1", "2", "0.50000"});
  channel.ResultCode = 8;
  channel.ShowResult(kResultGridOnly);
  EXPECT_EQ(channel.GridShown, 1);
  EXPECT_TRUE(channel.Windows().Grid);
  EXPECT_TRUE(platform.Boxes.empty());  // no prompt
  // And its saved text holds every row.
  const std::string text = channel.SavedFileText();
  size_t row_lines = 0;
  for (size_t at = text.find("1  2  0.50000\r\n"); at != std::string::npos;
       at = text.find("1  2  0.50000\r\n", at + 1)) {
    ++row_lines;
  }
  EXPECT_EQ(row_lines, static_cast<size_t>(rows));
}

TEST(OutputChannel, OneRowMoreIsTooBig) { EXPECT_TRUE(IsGridTooBig(kMaxPairwiseGridRows + 1)); }

TEST(OutputChannel, TooBigPromptNoCancels) {
  ScriptedPlatform platform;
  platform.Answers = {MsgAnswer::kNo};
  OutputChannel channel(platform);
  EXPECT_FALSE(channel.AskTooBig(20000).has_value());
  EXPECT_EQ(channel.TooBigCancel, 1);
  EXPECT_EQ(channel.TooBigSaved, 0);
  ASSERT_EQ(platform.Boxes.size(), 1u);
  const auto& box = platform.Boxes[0];
  EXPECT_EQ(box.Text,
            "Output too big to be displayed on the screen. There are 20000 rows !!!\n"
            "Do you want to save the output on a file ?\n"
            "You will need about 1300 kb. of disk space");
  EXPECT_EQ(box.Buttons, MsgButtons::kYesNo);
  EXPECT_TRUE(box.DefaultSecond);
  EXPECT_EQ(box.Title, "Ovelt");
  EXPECT_TRUE(platform.SaveDialogs.empty());
}

TEST(OutputChannel, TooBigPromptYesAsksForTheFile) {
  ScriptedPlatform platform;
  platform.Answers = {MsgAnswer::kYes};
  platform.SaveNames = {std::string("/tmp/pairs.out")};
  OutputChannel channel(platform);
  const auto file = channel.AskTooBigPairs(16291);
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(*file, "/tmp/pairs.out");
  EXPECT_EQ(channel.TooBigSaved, 1);
  EXPECT_EQ(channel.TooBigCancel, 0);
  ASSERT_EQ(platform.SaveDialogs.size(), 1u);
  EXPECT_EQ(platform.SaveDialogs[0].Title, "Save File As");
  EXPECT_EQ(platform.Boxes[0].Text,
            "The number of pairwise comparisons is too big to be displayed on the screen. There "
            "are 16291 rows !!!\n"
            "Do you want to save this information on a file ?  \n"
            "You will need about 1058 kb. of disk space");
}

TEST(OutputChannel, TooBigPromptYesButNoFileCancels) {
  ScriptedPlatform platform;
  platform.Answers = {MsgAnswer::kYes};
  platform.SaveNames = {std::nullopt};
  OutputChannel channel(platform);
  EXPECT_FALSE(channel.AskTooBig(17000).has_value());
  EXPECT_EQ(channel.TooBigCancel, 1);
  EXPECT_EQ(channel.TooBigSaved, 0);
}

TEST(OutputChannel, PrintPromptOnlyAboveTwoHundredRows) {
  ScriptedPlatform platform;
  platform.Answers = {MsgAnswer::kYes, MsgAnswer::kNo};
  OutputChannel channel(platform);
  EXPECT_FALSE(channel.AskPrintFinalOnly(200));
  EXPECT_TRUE(platform.Boxes.empty());
  EXPECT_TRUE(channel.AskPrintFinalOnly(201));
  EXPECT_EQ(channel.PrintFinalOnly, 1);
  EXPECT_EQ(platform.Boxes[0].Text,
            "Output too big. There are 201 rows of data !!!\n"
            "Do you want to print only the final results?");
  EXPECT_FALSE(channel.AskPrintFinalOnly(500));
  EXPECT_EQ(channel.PrintFinalOnly, 0);
}

}  // namespace
}  // namespace ovelt

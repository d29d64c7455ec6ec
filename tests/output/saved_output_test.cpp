// Saved output files and the session file, byte for byte. The expected texts are typed out here
// line by line (banner with its 24 blanks, rules, CR LF ends) rather than built by the code under
// test.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "output/output_channel.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "support/write_faults.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunWithWriteLimit;
using testing::ScriptedPlatform;
using testing::TempDir;
using testing::WriteFault;

const std::string kOpening =
    " Ovelt  Ver. 4.00.5                        05 - March - 2004  14:05:09\r\n"
    " =====================================================================\r\n"
    "\r\n"
    "\r\n";
const std::string kRule =
    "--------------------------------------------------------------------------";
const std::string kSeparator =
    "<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>\r\n\r\n";
const std::string kEndLine = " Ovelt Session Terminated on  05 - March - 2004  14:05:09\r\n";

// The labels a command gives its result, as the runner hands them to the channel.
ResultLabels Labelled(const std::string& title, const std::string& grid_head = "",
                      const std::string& separator = "  ") {
  ResultLabels labels;
  labels.Title = title;
  labels.GridTextHead = grid_head;
  labels.GridCellSeparator = separator;
  return labels;
}

// A sliding-window polymorphism run: text, a grid of two windows, kind 51.
void RunPolymorphism(OutputChannel& channel) {
  channel.ResetOutputs();
  channel.SetBusy(true, "Computing...");
  channel.AppendText("\r\n Input Data File: /data/a.fas\r\n");
  channel.Grid1.Rows = {{"1", "50", "0.01000", "0.01200", "3"},
                        {"2", "150", "0.02000", "0.01800", "5"}};
  channel.RaiseGauge(100);
  channel.ResultCode = 2;
  channel.Labels = Labelled("DNA Polymorphism", "     Window  Midpoint  Pi     Theta      S");
  channel.ShowResult(kResultTextAndGrid);
  channel.SetBusy(false);
}

// A Tajima test: text only, kind 53.
void RunTajima(OutputChannel& channel) {
  channel.ResetOutputs();
  channel.AppendText(" Tajima's D: 1.23400\r\n");
  channel.ResultCode = 5;
  channel.Labels = Labelled("Tajima's Test", "     Window Midpoint  D     Sign");
  channel.ShowResult(kResultTextOnly);
}

const std::string kPolymorphismResult =
    "DNA Polymorphism \r\n"
    " ----------------\r\n"
    "\r\n Input Data File: /data/a.fas\r\n"
    "\r\n"
    "\r\n" +
    kRule +
    "\r\n"
    "\r\n"
    "     Window  Midpoint  Pi     Theta      S\r\n" +
    kRule +
    "\r\n"
    "1  50  0.01000  0.01200  3\r\n"
    "2  150  0.02000  0.01800  5\r\n";

const std::string kTajimaResult =
    "Tajima's Test \r\n"
    " -------------\r\n"
    " Tajima's D: 1.23400\r\n"
    "\r\n";

TEST(SavedOutput, LiteralsHaveTheirLengths) {
  EXPECT_EQ(kOpening.find("\r\n"), 70u);
  EXPECT_EQ(kRule.size(), 74u);
  EXPECT_EQ(kSeparator.find("\r\n"), 76u);
}

TEST(SavedOutput, TextAndGridFileBytes) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  RunPolymorphism(channel);
  const std::string path = dir.File("run.out");
  EXPECT_TRUE(channel.SaveCurrentOutput(path));
  EXPECT_EQ(ReadBytes(path), kOpening + kPolymorphismResult);
  EXPECT_TRUE(platform.Boxes.empty());
}

TEST(SavedOutput, GridWritingShowsItsStatusThenRestoresTheLine) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  RunPolymorphism(channel);
  platform.StatusTexts.clear();
  ASSERT_TRUE(channel.SaveCurrentOutput(dir.File("run.out")));
  EXPECT_EQ(platform.StatusTexts,
            (std::vector<std::string>{"Writing...", "For Help, press F1"}));
}

TEST(SavedOutput, AnalysisHeadReplacesTheFirstVariant) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ResetOutputs();
  channel.Grid1.Rows = {{"12", "40", "28", "0.1000", "1.0000", "0.2500", "0.0500"}};
  channel.ResultCode = 4;
  channel.Labels = Labelled("Linkage Disequilibrium", "Site1  Site2   Dist     D       D'      R");
  channel.SetGridTextHead("Site1  Site2   Dist     D       D'      R    Fisher");
  channel.ShowResult(kResultGridOnly);
  const std::string path = dir.File("ld.out");
  ASSERT_TRUE(channel.SaveCurrentOutput(path));
  EXPECT_EQ(ReadBytes(path), kOpening +
                                 "Linkage Disequilibrium \r\n"
                                 " ----------------------\r\n"
                                 "\r\n" +
                                 kRule +
                                 "\r\n"
                                 "\r\n"
                                 "Site1  Site2   Dist     D       D'      R    Fisher\r\n" +
                                 kRule +
                                 "\r\n"
                                 "12  40  28  0.1000  1.0000  0.2500  0.0500\r\n");
}

TEST(SavedOutput, HeadBlockStandsForTheTextWhenOnlyTablesAreShown) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ResetOutputs();
  channel.HeaderBlock = " Input Data File: b.fas";
  channel.Grid2.ColumnTitles = {"Region", "Sites"};
  channel.Grid2.Rows = {{"Exon", "120.00"}};
  channel.ResultCode = 17;
  channel.Labels = Labelled("Pol. and Divergence in Functional Regions", "", " ");
  channel.ShowResult(kResultSecondGrid);
  const std::string path = dir.File("regions.out");
  ASSERT_TRUE(channel.SaveCurrentOutput(path));
  EXPECT_EQ(ReadBytes(path), kOpening +
                                 "Pol. and Divergence in Functional Regions \r\n"
                                 " -----------------------------------------\r\n"
                                 " Input Data File: b.fas\r\n"
                                 "\r\n" +
                                 kRule +
                                 "\r\n"
                                 "\r\n"
                                 "Region Sites\r\n" +
                                 kRule +
                                 "\r\n"
                                 "Exon 120.00\r\n");
}

TEST(SavedOutput, GeneFlowTableFollowsTheText) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ResetOutputs();
  channel.AppendText(" Gst: 0.10000");
  channel.GeneFlow.WithSequenceMeasures = false;
  channel.GeneFlow.Rows = {{"Pop A", "Pop B", {"0.50000", "2.00000"}}};
  channel.ResultCode = 28;
  channel.Labels = Labelled("Gene Flow and Genetic Differentiation");
  channel.ShowResult(kResultTextOnly);
  const std::string path = dir.File("flow.out");
  ASSERT_TRUE(channel.SaveCurrentOutput(path));
  EXPECT_EQ(ReadBytes(path),
            kOpening +
                "Gene Flow and Genetic Differentiation \r\n"
                " -------------------------------------\r\n"
                " Gst: 0.10000\r\n"
                "---------------------------------------------------------------------------------"
                "------\r\n"
                " Population 1      Population 2          Hs        Ks        Kxy       Gst   "
                "GammaSt       Fst\r\n"
                " Pop A             Pop B             0.50000   2.00000\r\n");
}

TEST(SavedOutput, TrelmoShuttleSavesOnlyItsDataLines) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  channel.ResetOutputs();
  channel.AppendText("report");
  channel.TrelmoLines = "3 120\r\nAAC\r\n";
  channel.Grid1.Rows = {{"x"}};
  channel.ResultCode = 18;
  channel.ShowResult(kResultTextAndGrid);
  const std::string path = dir.File("shuttle.tmo");
  ASSERT_TRUE(channel.SaveCurrentOutput(path));
  EXPECT_EQ(ReadBytes(path), "3 120\r\nAAC\r\n");
}

TEST(SavedOutput, FailureToWriteIsTold) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  RunPolymorphism(channel);
  const std::string path = dir.File("no_such_folder/run.out");
  EXPECT_FALSE(channel.SaveCurrentOutput(path));
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, "Can't save the output on the file: " + path);
  EXPECT_EQ(platform.Boxes[0].Title, "Ovelt");
}

TEST(SessionFile, OpeningIsWrittenAndMenusChange) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  EXPECT_EQ(channel.SessionOpen, 1);
  EXPECT_NE(channel.SessionFileNo, 0);
  EXPECT_EQ(channel.SessionFileName, path);
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, "All Output (except graphs) will be saved on file: " + path);
  EXPECT_EQ(channel.Commands().SendAllCaption, "Send All Output to File: " + path);
  EXPECT_FALSE(channel.Commands().SendAllEnabled);
  EXPECT_EQ(channel.Commands().CloseOutputCaption, "&Close Output File: " + path);
  EXPECT_TRUE(channel.Commands().CloseOutputEnabled);
  // The file takes its place, whole, when the session closes.
  EXPECT_FALSE(std::filesystem::exists(path));
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_EQ(ReadBytes(path), kOpening + kEndLine);
}

TEST(SessionFile, AnOldFileOfTheNameStaysUntilTheSessionCloses) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.Write("all.out", "an earlier session");
  ASSERT_TRUE(channel.SendAllOutput(path));
  RunTajima(channel);
  EXPECT_EQ(ReadBytes(path), "an earlier session");
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_EQ(ReadBytes(path), kOpening + kTajimaResult + kSeparator + kEndLine);
}

TEST(SessionFile, TwoAnalysesInARow) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  RunPolymorphism(channel);
  RunTajima(channel);

  // The second replaces the first in all windows.
  EXPECT_EQ(channel.TextBuffer, " Tajima's D: 1.23400\r\n");
  EXPECT_EQ(channel.GridShown, 0);
  EXPECT_TRUE(channel.Grid1.Rows.empty());
  EXPECT_TRUE(channel.Windows().Text);
  EXPECT_FALSE(channel.Windows().Grid);
  EXPECT_EQ(channel.ResultCode, 5);

  // The session file holds both, each followed by the 76-character line.
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_EQ(ReadBytes(path),
            kOpening + kPolymorphismResult + kSeparator + kTajimaResult + kSeparator + kEndLine);
  EXPECT_EQ(channel.SessionOpen, 0);
  EXPECT_EQ(channel.SessionFileNo, 0);
  EXPECT_EQ(channel.Commands().SendAllCaption, "&Send All Output to File...");
  EXPECT_TRUE(channel.Commands().SendAllEnabled);
  EXPECT_EQ(channel.Commands().CloseOutputCaption, "&Close Output File");
  EXPECT_FALSE(channel.Commands().CloseOutputEnabled);
}

TEST(SessionFile, OnlyTextResultsAreCopied) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  channel.ResetOutputs();
  channel.Grid1.Rows = {{"1"}};
  channel.ResultCode = 8;
  for (int kind : {kResultGridOnly, kResultSecondGrid, kResultGridAndGraph, kResultAddGraph,
                   kResultRemoveGraph, kResultGraphButtons}) {
    channel.ShowResult(kind);
  }
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_EQ(ReadBytes(path), kOpening + kEndLine);
}

TEST(SessionFile, FailedRunIsNotCopied) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  channel.ResetOutputs();
  channel.AppendText("half a report");
  channel.RunFailed = 1;
  channel.ResultCode = 2;
  channel.ShowResult(kResultTextOnly);
  ASSERT_TRUE(channel.CloseSessionFile());
  EXPECT_EQ(ReadBytes(path), kOpening + kEndLine);
}

TEST(SessionFile, EndingTheProgramWritesTheEndLine) {
  TempDir dir;
  const std::string path = dir.File("all.out");
  ScriptedPlatform platform;
  {
    OutputChannel channel(platform);
    ASSERT_TRUE(channel.SendAllOutput(path));
    RunTajima(channel);
  }
  EXPECT_EQ(ReadBytes(path), kOpening + kTajimaResult + kSeparator + kEndLine);
}

TEST(SessionFile, ClosingTwiceWritesOneEndLine) {
  TempDir dir;
  const std::string path = dir.File("all.out");
  ScriptedPlatform platform;
  {
    OutputChannel channel(platform);
    ASSERT_TRUE(channel.SendAllOutput(path));
    channel.CloseSessionFile();
    channel.CloseSessionFile();
  }
  EXPECT_EQ(ReadBytes(path), kOpening + kEndLine);
}

TEST(SessionFile, SavingUnderTheSessionsNameIsRefused) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  RunTajima(channel);
  const std::string before = ReadBytes(path);
  platform.Boxes.clear();

  EXPECT_FALSE(channel.SaveCurrentOutput(path));
  // Another spelling of the same file is refused too.
  const std::string other_spelling = (dir.Path() / "." / "all.out").string();
  EXPECT_FALSE(channel.SaveCurrentOutput(other_spelling));

  ASSERT_EQ(platform.Boxes.size(), 2u);
  EXPECT_EQ(platform.Boxes[0].Text, "Ovelt is using this file to save all the output");
  EXPECT_EQ(platform.Boxes[1].Text, "Ovelt is using this file to save all the output");
  EXPECT_EQ(ReadBytes(path), before);
  // A different name is fine.
  EXPECT_TRUE(channel.SaveCurrentOutput(dir.File("tajima.out")));
}

TEST(SessionFile, TooBigPromptNamesTheSessionFileAndRefusesItAsTarget) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("all.out");
  ASSERT_TRUE(channel.SendAllOutput(path));
  platform.Boxes.clear();
  platform.Answers = {MsgAnswer::kYes};
  platform.SaveNames = {path};
  EXPECT_FALSE(channel.AskTooBig(20000).has_value());
  EXPECT_EQ(channel.TooBigCancel, 1);
  ASSERT_EQ(platform.Boxes.size(), 2u);
  EXPECT_EQ(platform.Boxes[0].Text,
            "Output too big to be displayed on the screen. There are 20000 rows !!!\n"
            "The current output will not be saved on file: " +
                path +
                "\n"
                "Do you want to save the output on another output file ?\n"
                "You will need about 1300 kb. of disk space");
  EXPECT_EQ(platform.Boxes[1].Text, "Ovelt is using this file to save all the output");
}

TEST(SessionFile, FailureToOpenIsToldAndNothingIsSent) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string path = dir.File("missing_folder/all.out");
  EXPECT_FALSE(channel.SendAllOutput(path));
  EXPECT_EQ(channel.SessionOpen, 0);
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, "Can't save the output on the file: " + path +
                                        "\nFile already used ?\nIs it a Read-Only File ?\n"
                                        "Ovelt will not send the output to any file.");
  EXPECT_EQ(channel.Commands().SendAllCaption, "Send &All Output to File...");
  RunTajima(channel);  // nothing to send to, nothing breaks
  EXPECT_EQ(channel.TextShown, 1);
}

TEST(SessionFile, DeviceThatRefusesBytesIsToldAsAFailure) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full on this system";
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  EXPECT_FALSE(channel.SendAllOutput("/dev/full"));
  EXPECT_EQ(channel.SessionOpen, 0);
  EXPECT_EQ(platform.Boxes.back().Text,
            "Can't save the output on the file: /dev/full\nFile already used ?\n"
            "Is it a Read-Only File ?\nOvelt will not send the output to any file.");
}

TEST(SessionFile, NewSessionClosesTheOldOneFirst) {
  TempDir dir;
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  const std::string first = dir.File("first.out");
  const std::string second = dir.File("second.out");
  ASSERT_TRUE(channel.SendAllOutput(first));
  ASSERT_TRUE(channel.SendAllOutput(second));
  EXPECT_EQ(ReadBytes(first), kOpening + kEndLine);
  EXPECT_EQ(channel.SessionFileName, second);
}

// A full disk, and a program killed while it writes, at several bytes of the file: the file of
// that name keeps its old bytes, and the failure is told.
TEST(SavedOutput, AFullDiskOrAKilledProgramLeavesTheOldFile) {
  TempDir dir;
  const std::string path = dir.Write("run.out", "an earlier output");
  for (uint64_t limit : {0ull, 70ull, 150ull}) {
    for (WriteFault fault : {WriteFault::kDiskFull, WriteFault::kKilled}) {
      const auto end = RunWithWriteLimit(limit, fault, [&] {
        ScriptedPlatform platform;
        OutputChannel channel(platform);
        RunPolymorphism(channel);
        const bool saved = channel.SaveCurrentOutput(path);
        return !saved && platform.LastBox() == "Can't save the output on the file: " + path ? 3 : 0;
      });
      EXPECT_TRUE(testing::EndedBy(end, fault, 3)) << limit;
      EXPECT_EQ(ReadBytes(path), "an earlier output") << limit;
    }
  }
}

TEST(SessionFile, AFullDiskOrAKilledProgramLeavesTheOldFileAndTheCloseFails) {
  TempDir dir;
  const std::string path = dir.Write("all.out", "an earlier session");
  // Full at the opening lines, then at the first and at the second result.
  for (uint64_t limit : {uint64_t{10}, kOpening.size() + 10, kOpening.size() + 200}) {
    for (WriteFault fault : {WriteFault::kDiskFull, WriteFault::kKilled}) {
      const auto end = RunWithWriteLimit(limit, fault, [&] {
        ScriptedPlatform platform;
        OutputChannel channel(platform);
        const bool opened = channel.SendAllOutput(path);
        RunPolymorphism(channel);
        RunPolymorphism(channel);
        const bool closed = channel.CloseSessionFile();
        const bool told = platform.LastBox().starts_with("Can't save the output on the file: ");
        return (!opened || !closed) && told ? 3 : 0;
      });
      EXPECT_TRUE(testing::EndedBy(end, fault, 3)) << limit;
      EXPECT_EQ(ReadBytes(path), "an earlier session") << limit;
    }
  }
}

}  // namespace
}  // namespace ovelt

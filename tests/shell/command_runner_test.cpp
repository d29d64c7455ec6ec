// The one runner of the commands: what a run that stands leaves in the data and the channel, and
// that a run that does not stand leaves the data as it was, with the flags of the channel saying
// what became of it.

#include "shell/command_runner.h"

#include <gtest/gtest.h>

#include <new>

#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"
#include "analyses/polymorphism/neutrality/neutrality_command_steps.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "command/analysis_binding.h"
#include "core/minimum_sequences.h"
#include "polymorphism/neutrality_fixture.h"
#include "polymorphism/poly_fixture.h"
#include "polymorphism/run_fixture.h"

namespace ovelt {
namespace {

using test::RunBench;

// What a run may change in the data.
struct Kept {
  RegionSelection Region;
  int16_t ResultCode = 0;
};

Kept KeptOf(const ActiveData& ad) {
  return {ad.Region, ad.ResultCode};
}

void ExpectUnchanged(const Kept& before, const ActiveData& ad) {
  EXPECT_EQ(ad.Region.RegionFrom, before.Region.RegionFrom);
  EXPECT_EQ(ad.Region.RegionTo, before.Region.RegionTo);
  EXPECT_EQ(ad.ResultCode, before.ResultCode);
}

TEST(CommandRunner, ARunThatStandsKeepsItsRegionAndCode) {
  RunBench b(test::NeutralityRows());
  NeutralityOptions o;
  o.RegionFrom = 2;
  o.RegionTo = 9;
  ASSERT_TRUE(b.Run(CommandId::kTajima, o));
  EXPECT_EQ(b.ad.Region.RegionFrom, 2);
  EXPECT_EQ(b.ad.Region.RegionTo, 9);
  EXPECT_EQ(b.ad.ResultCode, 5);
  EXPECT_EQ(b.channel.ResultCode, 5);
  EXPECT_EQ(b.channel.Labels.Title, "Tajima's Test");
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  EXPECT_EQ(b.channel.RunFailed, 0);
  EXPECT_EQ(b.channel.TooBigCancel, 0);
  EXPECT_FALSE(b.channel.GaugeVisible());
  // No JSON unless asked for.
  EXPECT_EQ(b.outcome.Json, "");
  ASSERT_TRUE(b.Run(CommandId::kTajima, o, true));
  EXPECT_NE(b.outcome.Json.find("\"region_from\":2"), std::string::npos) << b.outcome.Json;
  EXPECT_NE(b.outcome.Json.find("\"region_to\":9"), std::string::npos);
}

TEST(CommandRunner, ARefusedOptionLeavesTheDataAndThePreviousResult) {
  RunBench b(test::NeutralityRows());
  NeutralityOptions first;
  first.RegionFrom = 3;
  ASSERT_TRUE(b.Run(CommandId::kTajima, first));
  const Kept before = KeptOf(b.ad);
  ASSERT_EQ(before.Region.RegionFrom, 3);
  const std::string text = b.channel.TextBuffer;

  DnaPolOptions bad;
  bad.RegionFrom = 8;
  bad.RegionTo = 3;
  EXPECT_FALSE(b.Run(CommandId::kDnaPolymorphism, bad));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  EXPECT_EQ(b.channel.RunFailed, 0);
  EXPECT_EQ(b.channel.TooBigCancel, 0);
  ExpectUnchanged(before, b.ad);
  // The options were refused before the run began: the result on show stays.
  EXPECT_EQ(b.channel.TextBuffer, text);
  EXPECT_EQ(b.channel.ResultCode, 5);
}

TEST(CommandRunner, ARefusedSelectionLeavesTheData) {
  RunBench b(test::NeutralityRows());
  test::AddSet(b.ad, "Three", {1, 2, 3});
  ASSERT_TRUE(b.Run(CommandId::kDnaPolymorphism, DnaPolOptions{}));
  const Kept before = KeptOf(b.ad);
  ASSERT_EQ(before.ResultCode, 2);

  NeutralityOptions o;
  o.SelSet1 = 1;
  o.RegionTo = 6;
  EXPECT_FALSE(b.Run(CommandId::kTajima, o));
  EXPECT_EQ(b.platform.LastBox(), TooFewSequencesMessage(4));
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  EXPECT_EQ(b.channel.RunFailed, 0);
  EXPECT_FALSE(b.channel.Windows().Text);
  EXPECT_FALSE(b.channel.GaugeVisible());
  ExpectUnchanged(before, b.ad);
}

TEST(CommandRunner, ASetIndexThatNamesNoSetIsRefusedAsTooFewSequences) {
  RunBench b(test::HandRows());
  DnaPolOptions o;
  o.SelSet1 = 5;
  const Kept before = KeptOf(b.ad);
  EXPECT_FALSE(b.Run(CommandId::kDnaPolymorphism, o));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  ExpectUnchanged(before, b.ad);
}

TEST(CommandRunner, AFailedComputationLeavesTheData) {
  // Sites 2..4 give a result; over 1..4 the two sequences differ at 3 of 4 sites, Pi = 0.75,
  // and Pi / (1 - 4 Pi / 3) divides by 0.
  RunBench b({"AAAA", "ACCC"});
  SizeChangeOptions mismatch;
  mismatch.RegionFrom = 2;
  ASSERT_TRUE(b.Run(CommandId::kSizeChanges, mismatch));
  const Kept before = KeptOf(b.ad);
  ASSERT_EQ(before.ResultCode, 15);
  ASSERT_EQ(before.Region.RegionFrom, 2);

  EXPECT_FALSE(b.Run(CommandId::kDnaPolymorphism, DnaPolOptions{}));
  EXPECT_EQ(b.platform.LastBox(), "Error computing Tajima's Variances : Division by zero");
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  EXPECT_EQ(b.channel.TooBigCancel, 0);
  EXPECT_FALSE(b.channel.Windows().Text);
  EXPECT_FALSE(b.channel.GaugeVisible());
  ExpectUnchanged(before, b.ad);
}

TEST(CommandRunner, NoPolymorphismFailsTheSizeChanges) {
  RunBench b({"ACGT", "ACGT", "ACGT"});
  const Kept before = KeptOf(b.ad);
  EXPECT_FALSE(b.Run(CommandId::kSizeChanges, SizeChangeOptions{}));
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  ExpectUnchanged(before, b.ad);
}

// A command of the test's own over all sequences and sites, whose window table cannot be
// filled, or whose computation runs out of memory.
struct Nothing {
  template <class V>
  void Visit(V&) const {}
};

CommandEntry TestEntry(bool table_too_big) {
  AnalysisParts<NeutralityOptions, Nothing> parts;
  parts.BusyWords = [](const NeutralityOptions&) { return "Testing..."; };
  parts.Select = [](const ActiveData& data, const NeutralityOptions&) {
    return SelectOneSet(data, 0, {1, data.NumSites});
  };
  parts.Compute = [table_too_big](const Selection&, const NeutralityOptions&,
                                  const Progress&) -> Nothing {
    if (!table_too_big) throw std::bad_alloc();
    return {};
  };
  parts.Report = [](const Nothing&, const Selection& sel, const NeutralityOptions&) {
    CommandReport report;
    report.Body = "never shown";
    AddWindowTable(
        report, sel.data().FileName, {"Window"},
        []() -> std::vector<std::vector<std::string>> { throw std::bad_alloc(); },
        [] { return GraphData{}; });
    return report;
  };
  CommandEntry entry;
  entry.Facts.Id = CommandId::kTajima;
  entry.Facts.MinimumSequences = 4;
  entry.Binding = MakeAnalysis(std::move(parts));
  return entry;
}

TEST(CommandRunner, AWindowTableTooBigToShowCancelsTheRun) {
  RunBench b(test::NeutralityRows());
  NeutralityOptions o;
  o.RegionFrom = 4;
  ASSERT_TRUE(b.Run(CommandId::kTajima, o));
  const Kept before = KeptOf(b.ad);

  const CommandEntry entry = TestEntry(true);
  TypedOptions<NeutralityOptions> typed;
  const RunOutcome outcome = RunCommand(&b.ad, b.channel, b.platform, entry, typed);
  EXPECT_FALSE(outcome.Stands);
  EXPECT_EQ(b.platform.LastBox(),
            "Input data file: sample.fas\nOutput too big.  Can't display it.\n"
            "Try to increase the step size (Sliding window)");
  EXPECT_EQ(b.channel.TooBigCancel, 1);
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  EXPECT_FALSE(b.channel.Windows().Text || b.channel.Windows().Grid || b.channel.Windows().Graph);
  EXPECT_EQ(b.channel.TextBuffer.find("never shown"), std::string::npos);
  EXPECT_FALSE(b.channel.GaugeVisible());
  ExpectUnchanged(before, b.ad);
}

TEST(CommandRunner, RunningOutOfMemoryFailsTheRun) {
  RunBench b(test::NeutralityRows());
  const Kept before = KeptOf(b.ad);
  const CommandEntry entry = TestEntry(false);
  TypedOptions<NeutralityOptions> typed;
  EXPECT_FALSE(RunCommand(&b.ad, b.channel, b.platform, entry, typed).Stands);
  EXPECT_EQ(b.platform.LastBox(),
            "        Out of memory !!!\nTry to reduce the number of programs running, or try to "
            "increase the RAM or virtual memory.");
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  EXPECT_EQ(b.channel.TooBigCancel, 0);
  ExpectUnchanged(before, b.ad);
}

TEST(CommandRunner, WithoutDataAnAnalysisFails) {
  testing::ScriptedPlatform platform;
  OutputChannel channel(platform);
  TypedOptions<NeutralityOptions> typed;
  EXPECT_FALSE(
      RunCommand(nullptr, channel, platform, *FindEntry(CommandId::kTajima), typed).Stands);
  EXPECT_EQ(platform.LastBox(), kNoDataFile);
  EXPECT_EQ(channel.RunFailed, 1);
}

}  // namespace
}  // namespace ovelt

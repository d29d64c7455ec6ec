#include <gtest/gtest.h>

#include "core/command_options.h"
#include "core/sequence_sets.h"
#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/cli/option_flags.h"

namespace ovelt {
namespace {

struct SampleOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  int16_t SelSet1 = 0;
  bool SlidingOn = false;
  int32_t WindowLength = 100;
  double Theta = 0.5;
  int16_t GapPolicy = 1;
  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use"});
    v.Flag(SlidingOn, {"sliding-window", "Sliding Window", "Run along a sliding window"});
    v.Integer(WindowLength, {"window", "Window Length:", "Window length"}, 1, 1000);
    v.Real(Theta, {"theta", "Theta:", "Theta", "Invalid theta"}, 0.0, 10.0);
    v.Choice(GapPolicy, {"gaps", "Gaps", "Sites with gaps"},
             {"excluded", "excluded only in pairwise comparisons",
              "considered (gap as the fifth state)"},
             1);
  }
};

TEST(OptionRangeCheck, ReportsTheFirstFieldOutOfItsLimits) {
  SampleOptions o;
  EXPECT_FALSE(CheckOptionRanges(o).has_value());
  o.WindowLength = 0;
  EXPECT_EQ(CheckOptionRanges(o), " Invalid Selection ");
  o.WindowLength = 10;
  o.Theta = 11;
  EXPECT_EQ(CheckOptionRanges(o), "Invalid theta");
  o.Theta = 1;
  o.GapPolicy = 4;
  EXPECT_EQ(CheckOptionRanges(o), " Invalid Selection ");
}

TEST(OptionFlags, FlagsComeFromTheDeclarationAndSetsResolveAfterOpening) {
  SampleOptions o;
  PendingOptionFlags pending;
  CLI::App app;
  BindOptionFlags(app, o, pending);
  std::vector<std::string> args = {"--to", "4", "--set", "North", "--sliding-window",
                                   "--window", "20", "--theta", "2.5", "--gaps", "3"};
  std::reverse(args.begin(), args.end());
  app.parse(args);
  EXPECT_TRUE(o.SlidingOn);
  EXPECT_EQ(o.WindowLength, 20);
  EXPECT_DOUBLE_EQ(o.Theta, 2.5);
  EXPECT_EQ(o.GapPolicy, 3);

  testing::TempDir dir;
  testing::ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(dir.Write("x.fas", ">a\nACGTA\n>b\nACGTT\n>c\nACGAA\n")));
  ASSERT_FALSE(AddSequenceSet(wb.Data(), "South", {1}).has_value());
  EXPECT_FALSE(ResolveOptionFlags(pending, wb));
  EXPECT_EQ(p.LastBox(), "No sequence set is named \"North\" (--set)");
  ASSERT_FALSE(AddSequenceSet(wb.Data(), "North", {2, 3}).has_value());
  EXPECT_TRUE(ResolveOptionFlags(pending, wb));
  EXPECT_EQ(o.SelSet1, 2);
  EXPECT_EQ(o.RegionFrom, 1);
  EXPECT_EQ(o.RegionTo, 4);
}

TEST(OptionFlags, AMissingRegionIsTheWholeFile) {
  SampleOptions o;
  PendingOptionFlags pending;
  CLI::App app;
  BindOptionFlags(app, o, pending);
  app.parse(std::vector<std::string>{});
  testing::TempDir dir;
  testing::ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(dir.Write("x.fas", ">a\nACGTA\n>b\nACGTT\n")));
  EXPECT_TRUE(ResolveOptionFlags(pending, wb));
  EXPECT_EQ(o.RegionFrom, 1);
  EXPECT_EQ(o.RegionTo, 5);
  EXPECT_EQ(o.SelSet1, 0);
}

}  // namespace
}  // namespace ovelt

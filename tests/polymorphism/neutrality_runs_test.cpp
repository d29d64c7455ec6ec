#include <gtest/gtest.h>

#include <algorithm>

#include "analyses/polymorphism/neutrality/fu_li_outgroup_report.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_run.h"
#include "analyses/polymorphism/neutrality/fu_li_report.h"
#include "analyses/polymorphism/neutrality/fu_li_run.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "analyses/polymorphism/neutrality/tajima_run.h"
#include "core/site_scan.h"
#include "neutrality_fixture.h"
#include "output/table_heads.h"
#include "support/scripted_platform.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

struct Bench {
  explicit Bench(const std::vector<std::string>& rows) : ad(test::MakeAlignment(rows)) {}
  std::string Body() const { return channel.TextBuffer.substr(channel.HeaderBlock.size()); }
  testing::ScriptedPlatform platform;
  ActiveData ad;
  OutputChannel channel{platform};
};

// The five sequences with the outgroup as a sixth, in sets 1 and 2.
struct OutgroupBench : Bench {
  OutgroupBench() : Bench(WithSixth()) {
    test::AddSet(ad, "Ingroup", {1, 2, 3, 4, 5});
    test::AddSet(ad, "Outgroup", {6});
  }
  static std::vector<std::string> WithSixth() {
    std::vector<std::string> rows = NeutralityRows();
    rows.push_back(OutgroupRow());
    return rows;
  }
};

TEST(TajimaRun, ReportOfTheWholeAlignment) {
  Bench b(NeutralityRows());
  TajimaRun run;
  ASSERT_TRUE(RunTajimaTest(b.ad, b.channel, b.platform, NeutralityOptions{}, &run));
  EXPECT_EQ(b.channel.HeaderBlock, ReportHead(b.ad, 10));
  EXPECT_EQ(b.Body(), TajimaReportBody(run.Result));
  EXPECT_EQ(b.channel.ResultCode, 5);
  EXPECT_TRUE(b.channel.Windows().Text);
  EXPECT_FALSE(b.channel.Windows().Grid);
  EXPECT_TRUE(b.platform.Boxes.empty());
  EXPECT_EQ(b.channel.RunFailed, 0);
}

TEST(TajimaRun, UsesTheMutationsSetting) {
  Bench b(NeutralityRows());
  b.ad.UseMutations = true;
  TajimaRun run;
  ASSERT_TRUE(RunTajimaTest(b.ad, b.channel, b.platform, NeutralityOptions{}, &run));
  EXPECT_EQ(run.Result.Segregating, 7);
  EXPECT_NE(b.Body().find(" Calculation using the total number of mutations"), std::string::npos);
}

TEST(TajimaRun, FewerThanFourSequencesAreRefused) {
  Bench b({"ACGT", "ACGA", "ACGG"});
  EXPECT_FALSE(RunTajimaTest(b.ad, b.channel, b.platform, NeutralityOptions{}));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 4 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
}

TEST(TajimaRun, InvalidRegionIsRefused) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.RegionFrom = 8;
  o.RegionTo = 3;
  EXPECT_FALSE(RunTajimaTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  o.RegionFrom = 1;
  o.RegionTo = 11;
  EXPECT_FALSE(RunTajimaTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
}

TEST(TajimaRun, NoPolymorphismSaysSoAndPrintsNoD) {
  Bench b({"ACGT", "ACGT", "ACGT", "ACGT"});
  ASSERT_TRUE(RunTajimaTest(b.ad, b.channel, b.platform, NeutralityOptions{}));
  EXPECT_EQ(b.platform.LastBox(), "No polymorphisms in the data\nCan't compute Tajima's test");
  EXPECT_EQ(b.Body().find("Tajima's D"), std::string::npos);
}

TEST(TajimaRun, SlidingWindowFillsTheGridAndTheGraph) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 5;
  o.StepSize = 5;
  TajimaRun run;
  ASSERT_TRUE(RunTajimaTest(b.ad, b.channel, b.platform, o, &run));
  ASSERT_TRUE(run.Result.Windows.has_value());
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, TajimaGridTitles());
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 2U);
  EXPECT_EQ(b.channel.Grid1.Rows[0], TajimaGridRow(run.Result.Windows->Rows[0], 5));
  EXPECT_TRUE(b.channel.Windows().Grid);
  EXPECT_EQ(run.Graph.GraphKind, kGraphTajima);
  EXPECT_EQ(run.Graph.GraphRows, 2);
  EXPECT_EQ(b.channel.GridTextHead(), DefaultGridTextHead(5));
  const std::string body = b.Body();
  EXPECT_NE(body.find(" Sliding Window Option\r\n"), std::string::npos);
  EXPECT_NE(body.find("   Window length: 5     Step size: 5\r\n" + TajimaWindowLegend() + "\r\n"),
            std::string::npos);
}

TEST(TajimaRun, NegativeStepIsRefused) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.StepSize = -1;
  EXPECT_FALSE(RunTajimaTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
}

TEST(TajimaRun, TooManyWindowsAreRefused) {
  // 16350 sites with a step of 1: 16350 windows, one too many.
  Bench b(std::vector<std::string>(4, std::string(16350, 'A')));
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 1;
  o.StepSize = 1;
  EXPECT_FALSE(RunTajimaTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(),
            " There are too many windows to analyze. Try to increase the step size (Sliding "
            "window)\n\n Invalid Selection ");
}

TEST(FuLiRun, ReportWithHaplotypesAndFs) {
  Bench b(NeutralityRows());
  b.ad.UseMutations = true;
  FuLiRun run;
  ASSERT_TRUE(RunFuLiTest(b.ad, b.channel, b.platform, NeutralityOptions{}, &run));
  EXPECT_EQ(b.channel.ResultCode, 11);
  EXPECT_EQ(b.Body(), FuLiReportBody(run.Result));
  EXPECT_NE(b.Body().find(" Fu's Fs statistic: -2.303\r\n"), std::string::npos);
}

TEST(FuLiRun, SetOfThreeIsRefused) {
  Bench b(NeutralityRows());
  test::AddSet(b.ad, "Three", {1, 2, 3});
  NeutralityOptions o;
  o.SelSet1 = 1;
  EXPECT_FALSE(RunFuLiTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 4 sequences are needed for the present analysis\n\nInvalid Selection !");
}

TEST(FuLiRun, SlidingWindowTable) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 2;
  o.StepSize = 2;
  FuLiRun run;
  ASSERT_TRUE(RunFuLiTest(b.ad, b.channel, b.platform, o, &run));
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 5U);
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, FuLiGridTitles());
  EXPECT_EQ(run.Graph.GraphKind, kGraphFuLi);
  // Window 7..8 has no mutation: the legend tells what n.d. means.
  EXPECT_NE(b.Body().find(FuLiWindowLegend(true) + "\r\n"), std::string::npos);
}

TEST(FuLiOutgroupRun, ReportWithItsOwnHead) {
  OutgroupBench b;
  b.ad.UseMutations = true;
  FuLiOutgroupRun run;
  ASSERT_TRUE(RunFuLiOutgroupTest(b.ad, b.channel, b.platform, FuLiOutgroupOptions{}, &run));
  EXPECT_EQ(b.channel.TextBuffer,
            FuLiOutgroupHead(b.ad, run.Result) + FuLiOutgroupReportBody(run.Result));
  EXPECT_EQ(b.channel.ResultCode, 12);
  EXPECT_NEAR(run.Result.FayWu.H, 0.3, 1e-12);
  EXPECT_NE(std::find(b.platform.StatusTexts.begin(), b.platform.StatusTexts.end(),
                      "Computing Fay and Wu's statistic..."),
            b.platform.StatusTexts.end());
}

TEST(FuLiOutgroupRun, EmptySetIsRefused) {
  OutgroupBench b;
  test::AddSet(b.ad, "Nobody", {});
  FuLiOutgroupOptions o;
  o.SelSet2 = 3;
  EXPECT_FALSE(RunFuLiOutgroupTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(),
            "There are 0 included sequences. Can't compute the Fu and Li tests with outgroup.");
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 1);
}

TEST(FuLiOutgroupRun, TwoIntraspecificSequencesAreRefused) {
  OutgroupBench b;
  test::AddSet(b.ad, "Two", {1, 2});
  FuLiOutgroupOptions o;
  o.SelSet1 = 3;
  EXPECT_FALSE(RunFuLiOutgroupTest(b.ad, b.channel, b.platform, o));
  EXPECT_EQ(b.platform.LastBox(),
            "Three or more sequences are needed in the intraspecific data to compute the Fu and "
            "Li tests with outgroup.");
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.ReopenDialog, 1);
}

TEST(FuLiOutgroupRun, SlidingWindowTable) {
  OutgroupBench b;
  FuLiOutgroupOptions o;
  o.SlidingOn = true;
  o.WindowLength = 5;
  o.StepSize = 5;
  FuLiOutgroupRun run;
  ASSERT_TRUE(RunFuLiOutgroupTest(b.ad, b.channel, b.platform, o, &run));
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, FuLiOutgroupGridTitles());
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 2U);
  EXPECT_EQ(run.Graph.GraphKind, kGraphFuLiOutgroup);
  EXPECT_EQ(b.channel.GridTextHead(), DefaultGridTextHead(12));
  EXPECT_NE(b.Body().find(FuLiWindowLegend(false) + "\r\n"), std::string::npos);
}

}  // namespace
}  // namespace ovelt

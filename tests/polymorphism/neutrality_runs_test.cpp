#include <gtest/gtest.h>

#include <algorithm>

#include "analyses/polymorphism/neutrality/fu_li_compute.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_report.h"
#include "analyses/polymorphism/neutrality/fu_li_report.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_compute.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "core/report_head.h"
#include "core/site_scan.h"
#include "neutrality_fixture.h"
#include "run_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

struct Bench : test::RunBench {
  using RunBench::RunBench;
  bool Tajima(const NeutralityOptions& o) { return Run(CommandId::kTajima, o); }
  bool FuLi(const NeutralityOptions& o) { return Run(CommandId::kFuLi, o); }
  bool FuLiOutgroup(const FuLiOutgroupOptions& o) { return Run(CommandId::kFuLiOutgroup, o); }
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

// The region and window of the options, as the dialog's words define them.
RegionSelection RegionOf(const ActiveData& ad, int32_t from, int32_t to) {
  return {from, to == 0 ? ad.NumSites : to};
}
template <class Options>
std::optional<SlidingWindowSpec> WindowOf(const ActiveData& ad, const Options& o) {
  if (!o.SlidingOn) return std::nullopt;
  return ChosenWindow(o.WindowLength, o.StepSize, ad.NumSites, ad.GapsInWindow);
}

// The results the runs must show, computed straight on the selection of the options.
TajimaTestResult TajimaOf(const ActiveData& ad, const NeutralityOptions& o) {
  const RegionSelection region = RegionOf(ad, o.RegionFrom, o.RegionTo);
  return ComputeTajimaTest(SelectOneSet(ad, o.SelSet1, region), region.RegionFrom, region.RegionTo,
                           ad.UseMutations, WindowOf(ad, o));
}
FuLiTestResult FuLiOf(const ActiveData& ad, const NeutralityOptions& o) {
  const RegionSelection region = RegionOf(ad, o.RegionFrom, o.RegionTo);
  return ComputeFuLiTest(SelectOneSet(ad, o.SelSet1, region), region.RegionFrom, region.RegionTo,
                         ad.UseMutations, WindowOf(ad, o));
}
Selection OutgroupSelection(const ActiveData& ad, const FuLiOutgroupOptions& o) {
  Selection sel = SelectTwoSets(ad, o.SelSet1, o.SelSet2, RegionOf(ad, o.RegionFrom, o.RegionTo));
  ClassifyFirst(sel);
  return sel;
}
FuLiOutgroupResult FuLiOutgroupOf(const ActiveData& ad, const FuLiOutgroupOptions& o) {
  const Selection sel = OutgroupSelection(ad, o);
  return ComputeFuLiOutgroupTest(sel, sel.Region.RegionFrom, sel.Region.RegionTo, ad.UseMutations,
                                 WindowOf(ad, o));
}

TEST(TajimaRun, ReportOfTheWholeAlignment) {
  Bench b(NeutralityRows());
  ASSERT_TRUE(b.Tajima(NeutralityOptions{}));
  EXPECT_EQ(b.channel.HeaderBlock, ReportHead(SelectOneSet(b.ad, 0, {1, 10}), 10));
  const TajimaTestResult result = TajimaOf(b.ad, NeutralityOptions{});
  EXPECT_EQ(b.Body(), TajimaReportBody(result));
  EXPECT_EQ(b.channel.ResultCode, 5);
  EXPECT_EQ(b.channel.Labels.Title, "Tajima's Test");
  EXPECT_TRUE(b.channel.Windows().Text);
  EXPECT_FALSE(b.channel.Windows().Grid);
  EXPECT_TRUE(b.platform.Boxes.empty());
  EXPECT_EQ(b.channel.RunFailed, 0);
  // The run keeps its region and result code in the data.
  EXPECT_EQ(b.ad.Region.RegionFrom, 1);
  EXPECT_EQ(b.ad.Region.RegionTo, 10);
  EXPECT_EQ(b.ad.ResultCode, 5);
  // All five included sequences, no set.
  EXPECT_EQ(b.channel.Used.FirstSet, "");
  EXPECT_EQ(b.channel.Used.FirstCount, 5);
}

TEST(TajimaRun, UsesTheMutationsSetting) {
  Bench b(NeutralityRows());
  b.ad.UseMutations = true;
  ASSERT_TRUE(b.Tajima(NeutralityOptions{}));
  const TajimaTestResult result = TajimaOf(b.ad, NeutralityOptions{});
  EXPECT_EQ(result.Segregating, 7);
  EXPECT_EQ(b.Body(), TajimaReportBody(result));
  EXPECT_NE(b.Body().find(" Calculation using the total number of mutations"), std::string::npos);
}

TEST(TajimaRun, FewerThanFourSequencesAreRefused) {
  Bench b({"ACGT", "ACGA", "ACGG"});
  EXPECT_FALSE(b.Tajima(NeutralityOptions{}));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 4 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
}

TEST(TajimaRun, InvalidRegionIsRefused) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.RegionFrom = 8;
  o.RegionTo = 3;
  EXPECT_FALSE(b.Tajima(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  o.RegionFrom = 1;
  o.RegionTo = 11;
  EXPECT_FALSE(b.Tajima(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
}

TEST(TajimaRun, NoPolymorphismSaysSoAndPrintsNoD) {
  Bench b({"ACGT", "ACGT", "ACGT", "ACGT"});
  ASSERT_TRUE(b.Tajima(NeutralityOptions{}));
  EXPECT_EQ(b.platform.LastBox(), "No polymorphisms in the data\nCan't compute Tajima's test");
  EXPECT_EQ(b.Body().find("Tajima's D"), std::string::npos);
}

TEST(TajimaRun, SlidingWindowFillsTheGridAndTheGraph) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 5;
  o.StepSize = 5;
  ASSERT_TRUE(b.Tajima(o));
  const TajimaTestResult result = TajimaOf(b.ad, o);
  ASSERT_TRUE(result.Windows.has_value());
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, TajimaGridTitles());
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 2U);
  EXPECT_EQ(b.channel.Grid1.Rows[0], TajimaGridRow(result.Windows->Rows[0]));
  EXPECT_EQ(b.channel.Grid1.Rows[1], TajimaGridRow(result.Windows->Rows[1]));
  EXPECT_TRUE(b.channel.Windows().Grid);
  EXPECT_EQ(b.channel.Graph().GraphKind, kGraphTajima);
  EXPECT_EQ(b.channel.Graph().GraphRows, 2);
  EXPECT_EQ(b.channel.GridTextHead(), "     Window Midpoint  D     Sign");
  const std::string body = b.Body();
  EXPECT_EQ(body, TajimaReportBody(result));
  EXPECT_NE(body.find(" Sliding Window Option\r\n"), std::string::npos);
  EXPECT_NE(body.find("   Window length: 5     Step size: 5\r\n" + TajimaWindowLegend() + "\r\n"),
            std::string::npos);
}

TEST(TajimaRun, NegativeStepIsRefused) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.StepSize = -1;
  EXPECT_FALSE(b.Tajima(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
}

TEST(TajimaRun, TooManyWindowsAreRefused) {
  // 16350 sites with a step of 1: 16350 windows, one too many.
  Bench b(std::vector<std::string>(4, std::string(16350, 'A')));
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 1;
  o.StepSize = 1;
  EXPECT_FALSE(b.Tajima(o));
  EXPECT_EQ(b.platform.LastBox(),
            " There are too many windows to analyze. Try to increase the step size (Sliding "
            "window)\n\n Invalid Selection ");
}

TEST(FuLiRun, ReportWithHaplotypesAndFs) {
  Bench b(NeutralityRows());
  b.ad.UseMutations = true;
  ASSERT_TRUE(b.FuLi(NeutralityOptions{}));
  EXPECT_EQ(b.channel.ResultCode, 11);
  EXPECT_EQ(b.Body(), FuLiReportBody(FuLiOf(b.ad, NeutralityOptions{})));
  EXPECT_NE(b.Body().find(" Fu's Fs statistic: -2.303\r\n"), std::string::npos);
}

TEST(FuLiRun, SetOfThreeIsRefused) {
  Bench b(NeutralityRows());
  test::AddSet(b.ad, "Three", {1, 2, 3});
  NeutralityOptions o;
  o.SelSet1 = 1;
  EXPECT_FALSE(b.FuLi(o));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 4 sequences are needed for the present analysis\n\nInvalid Selection !");
}

TEST(FuLiRun, SlidingWindowTable) {
  Bench b(NeutralityRows());
  NeutralityOptions o;
  o.SlidingOn = true;
  o.WindowLength = 2;
  o.StepSize = 2;
  ASSERT_TRUE(b.FuLi(o));
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 5U);
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, FuLiGridTitles());
  const FuLiTestResult result = FuLiOf(b.ad, o);
  ASSERT_TRUE(result.Windows.has_value());
  EXPECT_EQ(b.channel.Grid1.Rows[3], FuLiGridRow(result.Windows->Rows[3]));
  EXPECT_EQ(b.channel.Graph().GraphKind, kGraphFuLi);
  // Window 7..8 has no mutation: the legend tells what n.d. means.
  EXPECT_NE(b.Body().find(FuLiWindowLegend(true) + "\r\n"), std::string::npos);
}

TEST(FuLiOutgroupRun, ReportWithItsOwnHead) {
  OutgroupBench b;
  b.ad.UseMutations = true;
  ASSERT_TRUE(b.FuLiOutgroup(FuLiOutgroupOptions{}));
  const FuLiOutgroupResult result = FuLiOutgroupOf(b.ad, FuLiOutgroupOptions{});
  EXPECT_EQ(b.channel.TextBuffer,
            FuLiOutgroupHead(OutgroupSelection(b.ad, FuLiOutgroupOptions{}), result) +
                FuLiOutgroupReportBody(result));
  EXPECT_EQ(b.channel.ResultCode, 12);
  EXPECT_NEAR(result.FayWu.H, 0.3, 1e-12);
  EXPECT_NE(std::find(b.platform.StatusTexts.begin(), b.platform.StatusTexts.end(),
                      "Computing Fay and Wu's statistic..."),
            b.platform.StatusTexts.end());
  // The two sets of the run, for the print head of its chart.
  EXPECT_EQ(b.channel.Used.FirstSet, "Ingroup");
  EXPECT_EQ(b.channel.Used.FirstCount, 5);
  EXPECT_EQ(b.channel.Used.SecondSet, "Outgroup");
  EXPECT_EQ(b.channel.Used.SecondCount, 1);
}

TEST(FuLiOutgroupRun, EmptySetIsRefused) {
  OutgroupBench b;
  test::AddSet(b.ad, "Nobody", {});
  FuLiOutgroupOptions o;
  o.SelSet2 = 3;
  EXPECT_FALSE(b.FuLiOutgroup(o));
  EXPECT_EQ(b.platform.LastBox(),
            "There are 0 included sequences. Can't compute the Fu and Li tests with outgroup.");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  EXPECT_FALSE(b.channel.Windows().Text);
}

TEST(FuLiOutgroupRun, TwoIntraspecificSequencesAreRefused) {
  OutgroupBench b;
  test::AddSet(b.ad, "Two", {1, 2});
  FuLiOutgroupOptions o;
  o.SelSet1 = 3;
  EXPECT_FALSE(b.FuLiOutgroup(o));
  EXPECT_EQ(b.platform.LastBox(),
            "Three or more sequences are needed in the intraspecific data to compute the Fu and "
            "Li tests with outgroup.");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  EXPECT_FALSE(b.channel.Windows().Text);
}

TEST(FuLiOutgroupRun, SlidingWindowTable) {
  OutgroupBench b;
  FuLiOutgroupOptions o;
  o.SlidingOn = true;
  o.WindowLength = 5;
  o.StepSize = 5;
  ASSERT_TRUE(b.FuLiOutgroup(o));
  EXPECT_EQ(b.channel.Grid1.ColumnTitles, FuLiOutgroupGridTitles());
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 2U);
  const FuLiOutgroupResult result = FuLiOutgroupOf(b.ad, o);
  ASSERT_TRUE(result.Windows.has_value());
  EXPECT_EQ(b.channel.Grid1.Rows[0], FuLiOutgroupGridRow(result.Windows->Rows[0]));
  EXPECT_EQ(b.channel.Graph().GraphKind, kGraphFuLiOutgroup);
  EXPECT_EQ(b.channel.GridTextHead(), "     Window Midpoint   FL-D  Sign     FL-F  Sign     FW-H");
  EXPECT_NE(b.Body().find(FuLiWindowLegend(false) + "\r\n"), std::string::npos);
}

}  // namespace
}  // namespace ovelt

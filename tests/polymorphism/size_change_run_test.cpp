#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/size_changes/mismatch_expected.h"
#include "analyses/polymorphism/size_changes/size_change_command.h"
#include "analyses/polymorphism/size_changes/size_change_compute.h"
#include "core/report_head.h"
#include "output/format_mask.h"
#include "polymorphism/run_fixture.h"
#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

struct Bench {
  testing::ScriptedPlatform ui;
  OutputChannel out{ui};
  ActiveData ad;
  explicit Bench(const std::vector<std::string>& rows) : ad(test::MakeAlignment(rows)) {
    ad.Analysis = Number(CommandId::kSizeChanges);
  }
  bool Run(const SizeChangeOptions& options) {
    return test::RunWith(CommandId::kSizeChanges, ad, out, ui, options).Stands;
  }
};

// The selection of the options.
Selection SelectionOf(const ActiveData& ad, const SizeChangeOptions& options) {
  const int32_t to = options.RegionTo == 0 ? ad.NumSites : options.RegionTo;
  return SelectOneSet(ad, options.SelSet1, {options.RegionFrom, to});
}

// The result a run must show, computed step by step on the selection of the options.
SizeChangeResult ResultOf(const ActiveData& ad, const SizeChangeOptions& options) {
  const Selection sel = SelectionOf(ad, options);
  SizeChangeResult result = ObserveSizeChange(sel, sel.Region.RegionFrom, sel.Region.RegionTo);
  ExpectSizeChange(result, options, ResolveSizeChangeParameters(options, result));
  return result;
}

// The chart of a run holds the X values in column 1 and the series in columns 2 and 3.
std::vector<float> Column(const GraphData& graph, int32_t column) {
  std::vector<float> values;
  for (int32_t row = 1; row <= graph.Table.RowsUsed; ++row)
    values.push_back(graph.Table.at(row, column));
  return values;
}

TEST(SizeChangeRun, MismatchReportOfTheHandWorkedAlignment) {
  Bench b(test::kFiveSequences);
  ASSERT_TRUE(b.Run(SizeChangeOptions{}));
  EXPECT_TRUE(b.ui.Boxes.empty());
  // k = 1.8, VarK = 5.6 / 9, L = 7; C.V. = (1 + 1/20) Sqr(VarK) / k; r = 0.24.
  const double var_k = 5.6 / 9.0;
  const double cv = 1.05 * std::sqrt(var_k) / 1.8;
  const double r2 = std::sqrt(0.33) / 4.0;
  const double f0 = 1 / 2.8, f1 = 1.8 / 7.84, f2 = 3.24 / 21.952;
  const double mae =
      f0 + std::fabs(0.4 - f1) + std::fabs(0.4 - f2) + std::fabs(0.2 - (1 - f0 - f1 - f2));
  const double vt = 375.84 / 246.0;
  const double vst = ((75 - 15 + 2) * 1.8 + 40 * 3.24) / 246.0;
  const double vs = (28 * 1.8 + 26 * 3.24) / 246.0;
  const std::string expected =
      ReportHead(SelectionOf(b.ad, SizeChangeOptions{}), 7) +
      " Number of polymorphic (segregating) sites, S: 4\r\n" + "\r\n" + " Observed values:\r\n" +
      "    Nucleotide diversity, Pi: " + Format(1.8 / 7, "0.00000") + "\r\n" +
      "    Average Number of Pairwise Differences, k: 1.800\r\n" +
      "    Observed variance of k: " + Format(var_k, "0.0000") + "\r\n" +
      "    Observed C.V. of k: " + Format(cv, "0.0000") + "\r\n" +
      "    Raggedness statistic r: 0.2400\r\n" +
      "    Mean Absolute Error, MAE: " + Format(mae, "0.0000") + "\r\n" +
      "    Corvel and Valdor, R2 statistic: " + Format(r2, "0.0000") + "\r\n" + "\r\n" +
      " Expected values:\r\n" +
      "    Expected Total variance of k (no recombination), V(k): " + Format(vt, "0.0000") +
      "\r\n" +
      "       Expected C.V. of k (no recombination): " + Format(std::sqrt(vt) / 1.8, "0.0000") +
      "\r\n" +
      "    Expected Stochastic variance of k (no recombination), Vst(k): " + Format(vst, "0.0000") +
      "\r\n" +
      "    Expected Sampling variance of k (no recombination), Vs(k): " + Format(vs, "0.0000") +
      "\r\n" + "    Expected Total variance of k (free recombination), V(k): 0.9000\r\n" +
      "       Expected C.V. of k (free recombination): " + Format(std::sqrt(0.9) / 1.8, "0.0000") +
      "\r\n" + "    Expected Stochastic variance of k (free recombination), Vst(k): 0.6000\r\n" +
      "    Expected Sampling variance of k (free recombination), Vs(k): 0.3000\r\n" +
      " Parameters Estimation by letting Theta Final as infinite \r\n" +
      "    Estimate of Theta Initial: 1.800\r\n" + "    Estimate of Tau: 0.000\r\n" +
      " ====  Expected Values for Constant Population Size  =====\r\n";
  EXPECT_EQ(b.out.TextBuffer, expected);
  EXPECT_EQ(b.out.ResultCode, 15);
  EXPECT_EQ(b.out.TextShown, 1);
  EXPECT_EQ(b.out.GridShown, 1);
  EXPECT_EQ(b.out.GraphOn, 1);
  EXPECT_EQ(b.out.Grid1.ColumnTitles,
            (std::vector<std::string>{"Differences", "Freq. Obs.", "Freq. Exp."}));
  ASSERT_EQ(b.out.Grid1.Rows.size(), 4u);
  EXPECT_EQ(b.out.Grid1.Rows[0],
            (std::vector<std::string>{"    0", "0.00000", Format(f0, "0.00000")}));
  EXPECT_EQ(b.out.Grid1.Rows[2],
            (std::vector<std::string>{"    2", "0.40000", Format(f2, "0.00000")}));
  EXPECT_EQ(b.out.GridTextHead(), "Differences  Freq. Obs.  Freq. Exp.");
  const GraphData& graph = b.out.Graph();
  EXPECT_EQ(graph.GraphKind, 15);
  EXPECT_EQ(graph.GraphSubKind, 11);
  EXPECT_EQ(SizeChangeGraphData(ResultOf(b.ad, SizeChangeOptions{})).XTitle,
            "Pairwise Differences");
  EXPECT_EQ(Column(graph, 1), (std::vector<float>{0.0f, 1.0f, 2.0f, 3.0f}));
  EXPECT_EQ(Column(graph, 2), (std::vector<float>{0.0f, 0.4f, 0.4f, 0.2f}));
  EXPECT_FALSE(b.out.GaugeVisible());
}

TEST(SizeChangeRun, GrowthModelReportsItsParameters) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 0.5;
  options.ThetaFinal = 40.0;
  options.Tau = 2.0;
  ASSERT_TRUE(b.Run(options));
  const std::string& text = b.out.TextBuffer;
  EXPECT_NE(text.find(" ====  Expected Values for Population Size Changes  =====\r\n"
                      "    Theta Initial: 0.500\r\n"
                      "    Theta Final: 40.000\r\n"
                      "    Tau = 2ut: 2.000\r\n"),
            std::string::npos)
      << text;
  EXPECT_EQ(b.out.Grid1.Rows[1][2], Format(SizeChangeMismatch(0.5, 40.0, 2.0, 1), "0.00000"));
}

TEST(SizeChangeRun, GrowthModelTakesMissingValuesFromTheData) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.Model = kGrowthDecline;
  ASSERT_TRUE(b.Run(options));
  // VarK (0.622) is below k (1.8): tau 0, computed as 1e-07; theta initial k; theta final 1000.
  const SizeChangeResult result = ResultOf(b.ad, options);
  EXPECT_EQ(result.Parameters.Tau, 1e-07);
  EXPECT_DOUBLE_EQ(result.Parameters.ThetaInitial, 1.8);
  EXPECT_EQ(result.Parameters.ThetaFinal, 1000.0);
  EXPECT_NE(b.out.TextBuffer.find(SizeChangeReportText(result)), std::string::npos);
}

TEST(SizeChangeRun, TauAndThetaInitialOfZeroComputeWithTheSmallestRate) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 0.0;
  options.ThetaFinal = 10.0;
  options.Tau = 0.0;
  ASSERT_TRUE(b.Run(options));
  const SizeChangeResult result = ResultOf(b.ad, options);
  EXPECT_EQ(result.Parameters.ThetaInitial, 1e-07);
  EXPECT_EQ(result.Parameters.Tau, 1e-07);
  EXPECT_EQ(result.Table.Second[0], SizeChangeMismatch(1e-07, 10.0, 1e-07, 0));
  EXPECT_EQ(b.out.Grid1.Rows[0][2], Format(SizeChangeMismatch(1e-07, 10.0, 1e-07, 0), "0.00000"));
}

TEST(SizeChangeRun, TwoSequences) {
  Bench b({"ACGTAC", "ACTTGA"});
  ASSERT_TRUE(b.Run(SizeChangeOptions{}));
  const SizeChangeResult result = ResultOf(b.ad, SizeChangeOptions{});
  EXPECT_EQ(result.Mismatch.Pairs, 1);
  EXPECT_EQ(result.VarK, 0.0);
  EXPECT_EQ(result.Moments.Tau, 0.0);
  EXPECT_DOUBLE_EQ(result.Moments.ThetaInitial, result.K);
  EXPECT_DOUBLE_EQ(result.K, 3.0);
  EXPECT_NE(b.out.TextBuffer.find("    Estimate of Theta Initial: 3.000\r\n"
                                  "    Estimate of Tau: 0.000\r\n"),
            std::string::npos);
}

TEST(SizeChangeRun, NoPolymorphismFails) {
  Bench b({"ACGT", "ACGT", "ACGT"});
  EXPECT_FALSE(b.Run(SizeChangeOptions{}));
  ASSERT_EQ(b.ui.Boxes.size(), 1u);
  EXPECT_EQ(b.ui.Boxes[0].Text,
            "No polymorphisms in the data !\nCan't compute the pairwise number of differences.\n"
            "Input data file: /data/sample.fas");
  EXPECT_EQ(b.out.RunFailed, 1);

  Bench spectrum({"ACGT", "ACGT", "ACGT"});
  SizeChangeOptions options;
  options.AnalysisKind = kSpectrumKind;
  EXPECT_FALSE(spectrum.Run(options));
  EXPECT_NE(spectrum.ui.Boxes[0].Text.find("Can't compute the polymorphism frequency spectrum."),
            std::string::npos);
}

TEST(SizeChangeRun, ValidationMessagesKeepTheDialogOpen) {
  const auto refusal = [](double theta_initial, double theta_final, double tau) {
    Bench b(test::kFiveSequences);
    SizeChangeOptions options;
    options.Model = kGrowthDecline;
    options.ThetaInitial = theta_initial;
    options.ThetaFinal = theta_final;
    options.Tau = tau;
    EXPECT_FALSE(b.Run(options));
    EXPECT_EQ(b.out.ReopenDialog, 1);
    return b.ui.Boxes.empty() ? std::string() : b.ui.Boxes[0].Text;
  };
  EXPECT_EQ(refusal(100001, 10, 1), "The maximum value of Theta initial must be 100000");
  EXPECT_EQ(refusal(1, 100001, 1), "The maximum value of Theta final must be 100000");
  EXPECT_EQ(refusal(1, 0, 1), "The value of Theta final must be higher than 0");
  EXPECT_EQ(refusal(1, 200, 200), "The minimum value of (theta final, tau) must be lower than 200");

  Bench accepted(test::kFiveSequences);
  SizeChangeOptions options;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 1;
  options.ThetaFinal = 100000;
  options.Tau = 199.9;
  EXPECT_TRUE(accepted.Run(options));
  EXPECT_TRUE(accepted.ui.Boxes.empty());
}

TEST(SizeChangeRun, RegionAndMinimumChecks) {
  Bench region(test::kFiveSequences);
  SizeChangeOptions options;
  options.RegionFrom = 5;
  options.RegionTo = 3;
  EXPECT_FALSE(region.Run(options));
  EXPECT_EQ(region.ui.Boxes[0].Text, " Invalid Selection ");

  Bench few(test::kFiveSequences);
  test::AddSet(few.ad, "Lone", {2});
  SizeChangeOptions lone;
  lone.SelSet1 = 1;
  EXPECT_FALSE(few.Run(lone));
  EXPECT_EQ(few.ui.Boxes[0].Text,
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
}

TEST(SizeChangeRun, FrequencySpectrumTable) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.AnalysisKind = kSpectrumKind;
  ASSERT_TRUE(b.Run(options));
  // Observed 3 and 1 of 4; expected folded theta (1 + 1/4), theta (1/2 + 1/3).
  const double e1 = 1.25, e2 = 5.0 / 6.0;
  ASSERT_EQ(b.out.Grid1.Rows.size(), 2u);
  EXPECT_EQ(b.out.Grid1.Rows[0],
            (std::vector<std::string>{"    1", "0.75000", Format(e1 / (e1 + e2), "0.00000")}));
  EXPECT_EQ(b.out.Grid1.ColumnTitles[0], "Segreg. i");
  EXPECT_EQ(b.out.GridTextHead(), "Segreg. i    Freq. Obs.  Freq. Exp.");
  EXPECT_EQ(SizeChangeGraphData(ResultOf(b.ad, options)).XTitle, "Allelic Frequency");
  EXPECT_EQ(Column(b.out.Graph(), 2), (std::vector<float>{0.75f, 0.25f}));
  // theta = k = 1.8 under constant size: S5 = 1.8 a1(5), S2 = 1.8.
  const double a1 = 1 + 0.5 + 1.0 / 3 + 0.25;
  EXPECT_NE(b.out.TextBuffer.find(" Expected Number of Segregating sites among 5 sequences, "
                                  "Sn(t): " + Format(1.8 * a1, "0.000") + "\r\n" +
                                  "      Value of Sn(t)/a1 : 1.800\r\n"),
            std::string::npos)
      << b.out.TextBuffer;
}

TEST(SizeChangeRun, SegregatingSitesAlongTime) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.AnalysisKind = kSegregatingKind;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 1.0;
  options.ThetaFinal = 4.0;
  options.Tau = 12.0;  // t = 3 N generations
  ASSERT_TRUE(b.Run(options));
  EXPECT_NE(b.out.TextBuffer.find("=================== Population Size Change ===================\r\n"
                                  " Theta Initial: 1.000\r\n Theta Final: 4.000\r\n"
                                  " Time: 3.000N generations\r\n"),
            std::string::npos)
      << b.out.TextBuffer;
  // Rows 0.0 .. 6.0 by 0.1; S2(t) = 4 - 3 e^-t.
  ASSERT_EQ(b.out.Grid1.Rows.size(), 61u);
  EXPECT_EQ(b.out.Grid1.Rows[10][0], "1.0");
  EXPECT_EQ(b.out.Grid1.Rows[10][1], Format(4.0 - 3.0 * std::exp(-1.0), "0.00000"));
  EXPECT_EQ(b.out.Grid1.Rows[0][2], "1.00000");
  EXPECT_EQ(b.out.Grid1.ColumnTitles,
            (std::vector<std::string>{"Time (N gen)", "n = 2", "n = 5"}));
  EXPECT_EQ(b.out.GridTextHead(), "Time (N gen)   n = 2      n = 5");
  EXPECT_EQ(SizeChangeGraphData(ResultOf(b.ad, options)).XTitle, "Time in generations");
  EXPECT_EQ(b.out.Graph().GraphRows, 61);
}

TEST(SizeChangeRun, TooManyRowsForTheGrid) {
  Bench b(test::kFiveSequences);
  SizeChangeOptions options;
  options.AnalysisKind = kSegregatingKind;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 1.0;
  options.ThetaFinal = 0.01;
  options.Tau = 100.0;  // t = 10000: 200001 rows
  ASSERT_TRUE(b.Run(options));
  ASSERT_EQ(b.ui.Boxes.size(), 1u);
  EXPECT_EQ(b.ui.Boxes[0].Text,
            "Output too big to be displayed on the screen !\nThere are 200001rows !");
  EXPECT_EQ(b.out.GridShown, 0);
  EXPECT_EQ(b.out.TextShown, 1);
}

}  // namespace
}  // namespace ovelt

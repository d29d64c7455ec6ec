#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "analyses/polymorphism/diversity/dna_polymorphism.h"
#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"
#include "analyses/polymorphism/diversity/dna_polymorphism_report.h"
#include "core/report_head.h"
#include "core/site_scan.h"
#include "poly_fixture.h"
#include "run_fixture.h"
#include "support/json_reader.h"

namespace ovelt {
namespace {

using testing::JsonValue;

struct Bench : test::RunBench {
  using RunBench::RunBench;
  bool Run(const DnaPolOptions& options, bool want_json = false) {
    return RunBench::Run(CommandId::kDnaPolymorphism, options, want_json);
  }
  // The result the run must show, computed straight on the selection of the options.
  [[nodiscard]] DnaPolResult Result(const DnaPolOptions& options) const {
    const int32_t to = options.RegionTo == 0 ? ad.NumSites : options.RegionTo;
    const Selection sel = SelectOneSet(ad, options.SelSet1, {options.RegionFrom, to});
    return ComputeDnaPolymorphism(sel, options.RegionFrom, to, options,
                                  DnaPolWindow(options, ad.NumSites, ad.GapsInWindow));
  }
};

DnaPolOptions Whole() {
  DnaPolOptions o;
  o.RegionFrom = 1;
  o.RegionTo = 0;
  return o;
}

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines) text += line + "\r\n";
  return text;
}

TEST(DnaPolymorphismRun, TheFullReportOfTheHandWorkedAlignment) {
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.ComputeVarPi = o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o));
  EXPECT_EQ(b.channel.HeaderBlock, ReportHead(SelectOneSet(b.ad, 0, {1, 9}), 8));
  EXPECT_EQ(b.channel.TextBuffer.substr(0, b.channel.HeaderBlock.size()), b.channel.HeaderBlock);
  // Numbers worked in poly_stats_test, haplotypes_test, pi_variance_test, theta_variances_test:
  // Vn / 64 = 2.2901205 / 64 = 0.0357831 (SD 0.18916), Vf / 64 = 0.018 (SD 0.13416);
  // Pi(JC) = (0.3040988 + 0.5198604) / 2; finite sites 0.3125 / (7/12), 0.625 / 1.0763889,
  // 0.75 / 1.225; Vst = 405/246, Vs = 232.5/246, V = 637.5/246.
  EXPECT_EQ(b.Body(), Lines({
                          " Number of polymorphic (segregating) sites, S: 5",
                          " Total number of mutations, Eta: 6",
                          "",
                          " Number of Haplotypes, h: 5",
                          " Haplotype (gene) diversity, Hd: 1.000",
                          "    Variance of Haplotype diversity: 0.01600",
                          "       Standard Deviation of Haplotype diversity: 0.126",
                          "",
                          " Nucleotide diversity, Pi: 0.31250",
                          "    Sampling variance of Pi: 0.0020250",
                          "       Standard deviation of Pi: 0.04500",
                          " Nucleotide diversity (Jukes and Cantor), Pi(JC): 0.41198",
                          " Theta (per site) from Eta: 0.36000",
                          "",
                          " Theta (per site) from S, Theta-W: 0.30000",
                          "    Variance of theta (no recombination): 0.0357831",
                          "       Standard deviation of theta (no recombination): 0.18916",
                          "    Variance of theta (free recombination): 0.0180000",
                          "       Standard deviation of theta (free recombination): 0.13416",
                          "",
                          " Finite Sites Model ",
                          "    Theta (per site) from Pi: 0.53571",
                          "    Theta (per site) from S: 0.58065",
                          "    Theta (per site) from Eta: 0.61224",
                          "",
                          " Average number of nucleotide differences, k: 2.500",
                          "    Stochastic variance of k (no recombination), Vst(k): 1.646",
                          "    Sampling variance of k (no recombination), Vs(k): 0.945",
                          "       Total variance of k (no recombination), V(k): 2.591",
                          "    Stochastic variance of k (free recombination), Vst(k): 0.833",
                          "    Sampling variance of k (free recombination), Vs(k): 0.417",
                          "       Total variance of k (free recombination), V(k): 1.250",
                          "",
                          " Theta (per sequence) from S, Theta-W: 2.400",
                          "    Variance of theta (no recombination): 2.290",
                          "    Variance of theta (free recombination): 1.152",
                      }));
  EXPECT_EQ(b.Body(), DnaPolReportBody(b.Result(o), b.ad.GapsInSets));
  EXPECT_EQ(b.channel.ResultCode, 2);
  EXPECT_EQ(b.channel.TextShown, 1);
  EXPECT_EQ(b.channel.GridShown, 0);
  EXPECT_EQ(b.channel.Graph().GraphKind, 0);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
  EXPECT_EQ(b.channel.RunFailed, 0);
}

TEST(DnaPolymorphismRun, StatusWordsAndARisingGauge) {
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.ComputeVarPi = o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o));
  EXPECT_EQ(b.platform.StatusTexts,
            (std::vector<std::string>{"Computing Haplotype Diversity...",
                                      "Computing Haplotype Diversity...",
                                      "Computing sampling Variance of Pi...",
                                      "Computing Pi (Jukes and Cantor)...", "For Help, press F1"}));
  const auto& p = b.platform.ProgressValues;
  ASSERT_FALSE(p.empty());
  EXPECT_EQ(p.front(), 0);
  for (size_t i = 1; i < p.size(); ++i) EXPECT_GE(p[i], p[i - 1]);
  EXPECT_EQ(p.back(), 100);
}

TEST(DnaPolymorphismRun, OnlyGapSitesEndTheReportAfterPi) {
  Bench b({"A-?", "-C?", "AC?"});
  DnaPolOptions o = Whole();
  o.ComputeVarPi = o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o));
  const DnaPolResult result = b.Result(o);
  ASSERT_TRUE(result.Stats.has_value());
  EXPECT_EQ(result.Stats->NetSites, 0);
  const std::string body = b.Body();
  const std::string last = " Nucleotide diversity, Pi: 0.00000\r\n";
  ASSERT_GE(body.size(), last.size());
  EXPECT_EQ(body.substr(body.size() - last.size()), last);
  EXPECT_FALSE(result.Variances.has_value());
  EXPECT_FALSE(result.SamplingVariance.has_value());
}

TEST(DnaPolymorphismRun, NoSegregatingSitePrintsZeros) {
  Bench b({"ACGT", "ACGT", "ACGT"});
  ASSERT_TRUE(b.Run(Whole()));
  const std::string body = b.Body();
  for (const char* line :
       {" Number of polymorphic (segregating) sites, S: 0\r\n", " Number of Haplotypes, h: 1\r\n",
        " Haplotype (gene) diversity, Hd: 0.000\r\n", " Theta (per site) from Eta: 0.00000\r\n",
        " Theta (per site) from S, Theta-W: 0.00000\r\n",
        "    Theta (per site) from Pi: 0.00000\r\n",
        " Average number of nucleotide differences, k: 0.000\r\n",
        "       Total variance of k (no recombination), V(k): 0.000\r\n"})
    EXPECT_NE(body.find(line), std::string::npos) << line;
}

TEST(DnaPolymorphismRun, TwoSequencesGiveFiniteNumbers) {
  Bench b({"ACGTACGTAC", "ACGTACGTAA"});
  DnaPolOptions o = Whole();
  o.ComputeVarPi = true;
  ASSERT_TRUE(b.Run(o));
  EXPECT_EQ(b.Body().find("n.d."), std::string::npos);
  // Hd = 1, VarHd = 0.25. V(Pi) with n - 2 = 0, L = 10, d = 1: A = 1 / (4 * 100 * 4) = 1/1600,
  // B = 0, C = 1 / 100 / 4 = 4/1600, V = (-2/1600 + 4/1600) * 4 / 2 = 0.0025.
  EXPECT_NE(b.Body().find("    Variance of Haplotype diversity: 0.25000\r\n"), std::string::npos);
  const DnaPolResult result = b.Result(o);
  ASSERT_TRUE(result.SamplingVariance.has_value());
  EXPECT_NEAR(result.SamplingVariance->Variance, 0.0025, 1e-15);
  EXPECT_NE(b.Body().find("    Sampling variance of Pi: 0.0025000\r\n"), std::string::npos);
}

// n sequences of 4 sites, each carrying the base-4 digits of its index: all distinct.
std::vector<std::string> DistinctRows(int n) {
  std::vector<std::string> rows;
  const char bases[] = "ACGT";
  for (int i = 0; i < n; ++i) {
    std::string row;
    for (int d = 0, v = i; d < 4; ++d, v /= 4) row += bases[v % 4];
    rows.push_back(row);
  }
  return rows;
}

TEST(DnaPolymorphismRun, AHundredHaplotypesTakeFourDecimals) {
  Bench hundred(DistinctRows(100));
  ASSERT_TRUE(hundred.Run(Whole()));
  EXPECT_EQ(hundred.Result(Whole()).Haplotypes.value().Haplotypes, 100);
  // Hd = (1 - 0.01) * 100/99 = 1; VarHd = 2 / 9900 * (0.01 - 0.0001) = 2e-6.
  const std::string body = hundred.Body();
  EXPECT_NE(body.find(" Haplotype (gene) diversity, Hd: 1.0000\r\n"), std::string::npos);
  EXPECT_NE(body.find("    Variance of Haplotype diversity: 0.0000020\r\n"), std::string::npos);
  EXPECT_NE(body.find("       Standard Deviation of Haplotype diversity: 0.0014\r\n"),
            std::string::npos);

  Bench ninety_nine(DistinctRows(99));
  ASSERT_TRUE(ninety_nine.Run(Whole()));
  const std::string b99 = ninety_nine.Body();
  EXPECT_NE(b99.find(" Haplotype (gene) diversity, Hd: 1.000\r\n"), std::string::npos);
  EXPECT_NE(b99.find("    Variance of Haplotype diversity: 0.00000\r\n"), std::string::npos);
  EXPECT_NE(b99.find("       Standard Deviation of Haplotype diversity: 0.001\r\n"),
            std::string::npos);
}

TEST(DnaPolymorphismRun, TheSlidingWindowFillsTheGridAndTheGraph) {
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.SlidingOn = true;
  o.ComputeVarPi = o.ComputeJC = true;  // disabled by the window: not computed
  o.WindowLength = 4;
  o.StepSize = 2;
  ASSERT_TRUE(b.Run(o));
  const DnaPolResult result = b.Result(o);
  EXPECT_FALSE(result.SamplingVariance.has_value());
  EXPECT_FALSE(result.PiJC.has_value());
  ASSERT_TRUE(result.Variances.has_value());
  // Windows 1-4 (sites 1, 3: k = 1.0, S 2), 3-6 (3, 5: k = 1.0), 5-9 (site 7 a gap, so the
  // window reaches 9 for 4 net sites: 5, 8, 9, k = 1.5, S 3). a1 = 25/12:
  // Theta = 2 / (4 * 25/12) = 0.24 and 3 / (4 * 25/12) = 0.36.
  EXPECT_EQ(b.channel.Grid1.ColumnTitles,
            (std::vector<std::string>{"Window", "Midpoint", "Pi", "Theta", "S"}));
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 3u);
  EXPECT_EQ(b.channel.Grid1.Rows[0],
            (std::vector<std::string>{"        1-4", "    2", "0.25000", "0.24000", "   2"}));
  EXPECT_EQ(b.channel.Grid1.Rows[1],
            (std::vector<std::string>{"        3-6", "    4", "0.25000", "0.24000", "   2"}));
  EXPECT_EQ(b.channel.Grid1.Rows[2],
            (std::vector<std::string>{"        5-9", "    6", "0.37500", "0.36000", "   3"}));
  const GraphData& g = b.channel.Graph();
  EXPECT_EQ(g.GraphKind, kGraphPolymorphism);
  EXPECT_EQ(g.GraphRows, 3);
  EXPECT_EQ(g.Table.Capacity(), 5);  // Int(8 / 2) + 1
  EXPECT_EQ(g.Table.RowsUsed, 3);
  EXPECT_FLOAT_EQ(g.Table.at(3, 1), 6.0f);
  EXPECT_FLOAT_EQ(g.Table.at(3, 2), 0.375f);
  EXPECT_FLOAT_EQ(g.Table.at(3, 3), 0.36f);
  EXPECT_FLOAT_EQ(g.Table.at(3, 4), 3.0f);
  EXPECT_FLOAT_EQ(g.Table.at(4, 1), 0.0f);  // unused rows stay empty
  const std::string closing =
      " Sliding Window Option\r\n Sites with alignment gaps were not counted in the window "
      "length (and slide)\r\n   Window length: 4     Step size: 2\r\n";
  const std::string body = b.Body();
  EXPECT_EQ(body.substr(body.size() - closing.size()), closing);
  EXPECT_EQ(b.channel.GraphOn, 1);
  EXPECT_EQ(b.channel.GridShown, 1);
  EXPECT_EQ(b.channel.TextShown, 1);
  EXPECT_NE(std::find(b.platform.StatusTexts.begin(), b.platform.StatusTexts.end(),
                      "Computing Pi (Sliding Window)..."),
            b.platform.StatusTexts.end());
}

TEST(DnaPolymorphismRun, AWindowWithoutNetSitesPrintsZeros) {
  // Gaps counted in the windows: the window 1-2 holds two gap sites.
  Bench b({"--ACGT", "??ACGA", "--TCGA"});
  b.ad.GapsInWindow = true;
  DnaPolOptions o = Whole();
  o.SlidingOn = true;
  o.WindowLength = 2;
  o.StepSize = 2;
  ASSERT_TRUE(b.Run(o));
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 3u);
  EXPECT_EQ(b.channel.Grid1.Rows[0][2], "0.00000");
  EXPECT_EQ(b.channel.Grid1.Rows[0][3], "0.00000");
  EXPECT_EQ(b.channel.Grid1.Rows[0][4], "   0");
  EXPECT_NE(b.Body().find(" Sites with alignment gaps were counted in the window length"),
            std::string::npos);
}

TEST(DnaPolymorphismRun, TheMissingDataMode) {
  Bench b({"ACGTAC", "AC-T-C", "ATG?--", "GTGT??"});
  DnaPolOptions o = Whole();
  o.MissingData = true;
  ASSERT_TRUE(b.Run(o));
  // Numbers worked in missing_data_pi_test.
  EXPECT_EQ(b.Body(), Lines({
                          " Pairwise Deletion option:",
                          " Sites with alignment gaps or missing data were considered",
                          "",
                          " Analysis in Pairwise Comparisons",
                          " Gaps/missing information were excluded ONLY in pairwise comparisons",
                          "   Number of pairwise comparisons: 6",
                          "   Average number of sites analyzed: 3.17",
                          "   Average number of differences: 1.167",
                          "   Nucleotide diversity, Pi: 0.38889",
                          "",
                          "",
                          " Analysis at Individual Sites",
                          "   Number of sites analyzed: 5.00",
                          "   Number of polymorphic sites, S: 2",
                          "   Average number of differences: 1.167",
                          "   Nucleotide diversity, Pi: 0.23333",
                          "   Theta-W, per sequence: 1.09091",
                          "   Theta-W, per site: 0.21818",
                      }));
  EXPECT_EQ(b.channel.TextShown, 1);
}

TEST(DnaPolymorphismRun, TheMissingDataModeWithGapsExcludedInTheWholeFile) {
  Bench b({"ACGT", "ACTT", "GCGT", "A-GT"});
  test::AddSet(b.ad, "pop", {1, 2, 3});
  b.ad.GapsInSets = 2;
  ReclassifyIncluded(b.ad);
  ComputeSiteDiversity(b.ad);
  DnaPolOptions o = Whole();
  o.SelSet1 = 1;
  o.MissingData = true;
  ASSERT_TRUE(b.Run(o));
  EXPECT_NE(b.Body().find(" Sites with alignment gaps or missing data were considered\r\n"
                          " Sites with alignment gaps or missing data in excluded sequences\r\n"
                          "    were completly excluded\r\n\r\n"),
            std::string::npos);
  const DnaPolResult result = b.Result(o);
  ASSERT_TRUE(result.Deletion.has_value());
  EXPECT_EQ(result.Deletion->ExcludedGapSites, 1);
}

TEST(DnaPolymorphismRun, MissingDataLeavesOutTheExtras) {
  // The dialog never lets them stand together; should they, the missing-data mode computes
  // neither Pi(JC) nor the variance of Pi.
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.MissingData = o.ComputeJC = o.ComputeVarPi = true;
  ASSERT_TRUE(b.Run(o));
  const DnaPolResult result = b.Result(o);
  EXPECT_TRUE(result.Deletion.has_value());
  EXPECT_FALSE(result.PiJC.has_value());
  EXPECT_FALSE(result.SamplingVariance.has_value());
  EXPECT_EQ(b.Body().find("Jukes"), std::string::npos);
  // The dialog's rule.
  DnaPolOptions d = SwitchDnaPolOption(SwitchDnaPolOption(Whole(), "jc"), "variance");
  d = SwitchDnaPolOption(d, "missing-data");
  EXPECT_TRUE(d.MissingData);
  EXPECT_FALSE(d.ComputeJC);
  EXPECT_FALSE(d.ComputeVarPi);
  d = SwitchDnaPolOption(d, "jc");
  EXPECT_TRUE(d.ComputeJC);
  EXPECT_FALSE(d.MissingData);
}

TEST(DnaPolymorphismRun, TooFewSequencesReopenTheDialog) {
  Bench b(test::HandRows());
  test::AddSet(b.ad, "one", {2});
  DnaPolOptions o = Whole();
  o.SelSet1 = 1;
  EXPECT_FALSE(b.Run(o));
  EXPECT_EQ(b.platform.LastBox(),
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  EXPECT_EQ(b.channel.TextShown, 0);
}

TEST(DnaPolymorphismRun, BadRegionsAndWindowsAreRefused) {
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.RegionFrom = 5;
  o.RegionTo = 3;
  EXPECT_FALSE(b.Run(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  EXPECT_EQ(b.channel.ReopenDialog, 1);
  o = Whole();
  o.RegionTo = 10;  // beyond the 9 sites
  EXPECT_FALSE(b.Run(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  o = Whole();
  o.SlidingOn = true;
  o.WindowLength = 2;
  o.StepSize = 3;  // the window below the step
  EXPECT_FALSE(b.Run(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  o.WindowLength = -1;
  EXPECT_FALSE(b.Run(o));
  EXPECT_EQ(b.platform.LastBox(), " Invalid Selection ");
  EXPECT_EQ(b.channel.TextShown, 0);
}

TEST(DnaPolymorphismRun, AFailingStepShowsItsMessage) {
  // Two sequences differing at 3 of 4 sites: Pi = 0.75, and Pi / (1 - 4 Pi / 3) divides by 0.
  Bench b({"AAAA", "ACCC"});
  EXPECT_FALSE(b.Run(Whole()));
  EXPECT_EQ(b.platform.LastBox(), "Error computing Tajima's Variances : Division by zero");
  EXPECT_EQ(b.channel.RunFailed, 1);
  EXPECT_EQ(b.channel.TextShown, 0);
  EXPECT_EQ(b.channel.ReopenDialog, 0);
}

// The JSON of a run, read back: the hand-worked numbers of test::HandRows, counts as integers.
TEST(DnaPolymorphismRun, TheResultAsJson) {
  Bench b(test::HandRows());
  DnaPolOptions o = Whole();
  o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o, true));
  const JsonValue j = JsonValue::Parse(b.outcome.Json);
  EXPECT_EQ(j["analysis"].Text(), "DNA Polymorphism");
  EXPECT_EQ(j.Keys().front(), "analysis");
  for (const auto& [key, count] : std::vector<std::pair<std::string, long long>>{
           {"region_from", 1}, {"region_to", 9}, {"sequences", 5}, {"net_sites", 8},
           {"segregating_sites", 5}, {"mutations", 6}, {"haplotypes", 5}}) {
    ASSERT_TRUE(j[key].IsInteger()) << key;
    EXPECT_EQ(j[key].Integer(), count) << key;
  }
  EXPECT_FALSE(j["missing_data"].Bool());
  // k = 2.5 over L = 8; five haplotypes of one sequence each: Hd = 5/4 (1 - 5/25) = 1 and
  // VarHd = 2/20 (0.2 - 0.04) = 0.016 (Nei 1987, 8.4 and 8.12).
  EXPECT_NEAR(j["k"].Number(), 2.5, 1e-12);
  EXPECT_NEAR(j["pi"].Number(), 0.3125, 1e-12);
  EXPECT_NEAR(j["hd"].Number(), 1.0, 1e-12);
  EXPECT_NEAR(j["var_hd"].Number(), 0.016, 1e-12);
  // a1 = 1 + 1/2 + 1/3 + 1/4 = 25/12: theta = 5 / a1 = 2.4 per sequence, 0.3 per site; from
  // Eta = 6 it is 0.36 per site.
  EXPECT_NEAR(j["theta_sequence"].Number(), 2.4, 1e-12);
  EXPECT_NEAR(j["theta_site"].Number(), 0.3, 1e-12);
  EXPECT_NEAR(j["theta_eta_site"].Number(), 0.36, 1e-12);
  // Pi(JC): five pairs with d = 2 and five with d = 3 over L = 8 (Jukes and Cantor 1969).
  const double jc = (-0.75 * std::log(1.0 - 8.0 / 24.0) - 0.75 * std::log(1.0 - 12.0 / 24.0)) / 2;
  EXPECT_NEAR(j["pi_jc"].Number(), jc, 1e-12);
  // Not asked for: left out.
  for (const char* key : {"var_pi", "sliding_window", "gc_windows", "pairwise_deletion"})
    EXPECT_FALSE(j.Has(key)) << key;
  // No hand-written keys of old.
  for (const char* key : {"theta_w_sequence", "variances", "sampling_variance_pi"})
    EXPECT_FALSE(j.Has(key)) << key;
}

TEST(DnaPolymorphismRun, JsonWithoutNetSitesHasNulls) {
  Bench b({"A-?", "-C?", "AC?"});
  DnaPolOptions o = Whole();
  o.ComputeVarPi = o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o, true));
  const JsonValue j = JsonValue::Parse(b.outcome.Json);
  EXPECT_EQ(j["net_sites"].Integer(), 0);
  // Asked for, but there is no net site to compute them over.
  for (const char* key : {"pi", "var_pi", "pi_jc", "theta_sequence", "theta_site", "theta_eta_site",
                          "var_k_no_recombination", "var_theta_sequence_free_recombination"})
    EXPECT_TRUE(j[key].IsNull()) << key;
}

TEST(DnaPolymorphismRun, PiJCWithoutAUsablePairIsNullAndPrintsZero) {
  // One pair differing at all 3 sites: 1 - 4 d / (3 L) is below 0, no pair is usable.
  Bench b({"AAA", "CCC"});
  DnaPolOptions o = Whole();
  o.ComputeJC = true;
  ASSERT_TRUE(b.Run(o, true));
  EXPECT_NE(b.Body().find(" Nucleotide diversity (Jukes and Cantor), Pi(JC): 0.00000\r\n"),
            std::string::npos)
      << b.Body();
  const JsonValue j = JsonValue::Parse(b.outcome.Json);
  EXPECT_TRUE(j["pi_jc"].IsNull());
  EXPECT_NEAR(j["pi"].Number(), 1.0, 1e-12);
}

TEST(DnaPolymorphismRun, JsonOfTheMissingDataMode) {
  // The alignment of the pairwise-deletion tests: four sequences, six sites.
  Bench b({"ACGTAC", "AC-T-C", "ATG?--", "GTGT??"});
  DnaPolOptions o = Whole();
  o.MissingData = true;
  ASSERT_TRUE(b.Run(o, true));
  const JsonValue j = JsonValue::Parse(b.outcome.Json);
  EXPECT_TRUE(j["missing_data"].Bool());
  // The statistics of the normal mode are not computed in this mode.
  for (const char* key : {"net_sites", "segregating_sites", "k", "pi", "haplotypes", "hd",
                          "theta_sequence", "theta_site"})
    EXPECT_TRUE(j[key].IsNull()) << key;
  EXPECT_FALSE(j.Has("sliding_window"));
  const JsonValue& d = j["pairwise_deletion"];
  // Pairs (1,2) 4 sites 0 differences, (1,3) 3 and 1, (1,4) 4 and 2, (2,3) 2 and 1, (2,4) 3
  // and 2, (3,4) 3 and 1; sites 1 and 2 polymorphic (Pi 1/2 and 2/3), 5 sites analyzed.
  EXPECT_EQ(d["pairs_compared"].Integer(), 6);
  EXPECT_NEAR(d["average_sites_per_pair"].Number(), 19.0 / 6, 1e-12);
  EXPECT_NEAR(d["k_pairwise"].Number(), 7.0 / 6, 1e-12);
  EXPECT_NEAR(d["pi_pairwise"].Number(), (0 + 1.0 / 3 + 0.5 + 0.5 + 2.0 / 3 + 1.0 / 3) / 6,
              1e-12);
  EXPECT_EQ(d["sites_analyzed"].Integer(), 5);
  EXPECT_EQ(d["segregating_sites"].Integer(), 2);
  EXPECT_TRUE(d["excluded_gap_sites"].IsInteger());
  EXPECT_NEAR(d["k"].Number(), 0.5 + 2.0 / 3, 1e-12);
  EXPECT_NEAR(d["pi"].Number(), (0.5 + 2.0 / 3) / 5, 1e-12);
  EXPECT_NEAR(d["theta_sequence"].Number(), 12.0 / 11, 1e-12);  // 2 / a1(4)
  EXPECT_NEAR(d["theta_site"].Number(), 12.0 / 11 / 5, 1e-12);
}

TEST(DnaPolymorphismRun, JsonOfTheWindowsAndOfGC) {
  // Gaps count in the windows: window 3-4 holds no net site and no nucleotide.
  Bench b({"AC--GG", "AT?-GC", "AT--GG"});
  b.ad.GapsInWindow = true;
  DnaPolOptions o = Whole();
  o.SlidingOn = o.GcContent = true;
  o.WindowLength = 2;
  o.StepSize = 2;
  ASSERT_TRUE(b.Run(o, true));
  const JsonValue j = JsonValue::Parse(b.outcome.Json);
  const JsonValue& w = j["sliding_window"];
  EXPECT_EQ(w["window_length"].Integer(), 2);
  EXPECT_EQ(w["step_size"].Integer(), 2);
  EXPECT_TRUE(w["gaps_in_window"].Bool());
  ASSERT_EQ(w["windows"].size(), 3u);
  // Window 1-2: site 2 C T T, gene diversity 3/2 (1 - 5/9) = 2/3 over 2 net sites; S = 1,
  // theta = 1 / (2 a1(3)) = 1 / 3.
  const JsonValue& first = w["windows"][0];
  EXPECT_EQ(first["start"].Integer(), 1);
  EXPECT_EQ(first["end"].Integer(), 2);
  EXPECT_EQ(first["net_sites"].Integer(), 2);
  EXPECT_TRUE(first["midpoint"].IsInteger());
  EXPECT_NEAR(first["pi"].Number(), 1.0 / 3, 1e-12);
  EXPECT_NEAR(first["theta_site"].Number(), 1.0 / 3, 1e-12);
  EXPECT_EQ(first["segregating_sites"].Integer(), 1);
  const JsonValue& empty = w["windows"][1];
  EXPECT_EQ(empty["net_sites"].Integer(), 0);
  EXPECT_TRUE(empty["pi"].IsNull());
  EXPECT_TRUE(empty["theta_site"].IsNull());
  // G+C: window 1-2 holds A C A T A T (1/6), window 3-4 nothing, window 5-6 G G G C G G (1).
  const JsonValue& gc = j["gc_windows"];
  EXPECT_EQ(gc["window_length"].Integer(), 2);
  ASSERT_EQ(gc["windows"].size(), 3u);
  EXPECT_EQ(gc["windows"][0]["start"].Integer(), 1);
  EXPECT_NEAR(gc["windows"][0]["gc_content"].Number(), 1.0 / 6, 1e-12);
  EXPECT_NEAR(gc["windows"][0]["at_content"].Number(), 5.0 / 6, 1e-12);
  EXPECT_EQ(gc["windows"][0]["c_count"].Integer(), 1);
  EXPECT_TRUE(gc["windows"][1]["gc_content"].IsNull());
  EXPECT_EQ(gc["windows"][1]["g_count"].Integer(), 0);
  EXPECT_NEAR(gc["windows"][2]["gc_content"].Number(), 1.0, 1e-12);
  EXPECT_EQ(gc["windows"][2]["g_count"].Integer(), 5);
  // The grid shows the G+C windows, with 0 where there is no nucleotide, as it always did.
  ASSERT_EQ(b.channel.Grid1.Rows.size(), 3u);
  EXPECT_EQ(b.channel.Grid1.Rows[1][2], "0.00000");
}

}  // namespace
}  // namespace ovelt

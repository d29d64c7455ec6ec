#include "analyses/polymorphism/overview/overview_stats.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/overview/overview_report.h"
#include "core/coding_regions.h"
#include "output/format_mask.h"
#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

TEST(OverviewStats, FiveSequencesByHand) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const OverviewStats o = ComputeOverview(ad, 1, 8, false);
  EXPECT_EQ(o.SegSites, 4);
  EXPECT_EQ(o.Mutations, 4);
  EXPECT_EQ(o.NetSites, 7);
  // G and C among the 35 nucleotides of the 7 sites without gaps: 3 + 4 + 3 + 3 + 4.
  ASSERT_TRUE(o.Gc.Total.has_value());
  EXPECT_NEAR(o.Gc.Total->Content, 17.0 / 35.0, 1e-12);
  EXPECT_EQ(o.Gc.Total->Sites, 7);
  EXPECT_FALSE(o.Changes.has_value());
  // Five haplotypes of one sequence each: Q2 = 0.2, Q3 = 0.04.
  EXPECT_EQ(o.Haplotypes, 5);
  EXPECT_NEAR(o.Hd.value(), 1.0, 1e-12);
  EXPECT_NEAR(o.VarHd.value(), 0.1 * (0.2 - 0.04), 1e-12);
  EXPECT_NEAR(o.K.value(), 1.8, 1e-12);
  const double a1 = 1 + 0.5 + 1.0 / 3 + 0.25;
  EXPECT_NEAR(o.ThetaPerSequence.value(), 4 / a1, 1e-12);
  EXPECT_NEAR(o.ThetaPerSite.value(), 4 / a1 / 7, 1e-12);

  // Sampling variance of Pi from the hand-counted differences.
  const double d[5][5] = {{0, 1, 2, 3, 3}, {1, 0, 1, 2, 2}, {2, 1, 0, 1, 1},
                          {3, 2, 1, 0, 2}, {3, 2, 1, 2, 0}};
  const int n = 5;
  const double l2 = static_cast<float>(49.0);
  double sum = 0, b = 0, c = 0;
  for (int i = 0; i < n; ++i) {
    double row = 0;
    for (int j = 0; j < n; ++j) row += d[i][j];
    b += row * row;
    for (int j = i + 1; j < n; ++j) {
      sum += d[i][j];
      c += d[i][j] * d[i][j];
    }
  }
  const double dbar = sum / 10;
  const double a = dbar * dbar * 16 / (4 * 49.0 * 25);
  b = b / l2 / 125 * 3;
  c = c / l2 / 25;
  EXPECT_NEAR(o.VarPi.value(), ((6 - 4 * n) * a + b + c) * 4 / 20, 1e-9);

  // Tajima's D (Tajima 1989) for n = 5, S = 4, k = 1.8.
  const double a2 = 1 + 0.25 + 1.0 / 9 + 1.0 / 16;
  const double c1 = 0.5 - 1 / a1;
  const double c2 = 66.0 / 180 - 7 / (5 * a1) + a2 / (a1 * a1);
  const double e1 = c1 / a1, e2 = c2 / (a1 * a1 + a2);
  ASSERT_TRUE(o.TestsComputed);
  ASSERT_TRUE(o.TajimaD.Value.has_value());
  EXPECT_NEAR(*o.TajimaD.Value, (1.8 - 4 / a1) / std::sqrt(e1 * 4 + e2 * 12), 1e-9);
  ASSERT_TRUE(o.FuLiDStar.Value.has_value());
  ASSERT_TRUE(o.FuLiFStar.Value.has_value());

  // Fs (Fu 1997) with h = n = 5 and theta = k = 1.8: P(K = 5) = theta^4 / ((theta + 1) ...
  // (theta + 4)), the probability of fewer haplotypes is 1 - P(K = 5).
  const double p5 = std::pow(1.8, 4) / (2.8 * 3.8 * 4.8 * 5.8);
  ASSERT_TRUE(o.Fs.has_value());
  EXPECT_NEAR(o.Fs->PEqual, p5, 1e-12);
  EXPECT_NEAR(o.Fs->StrobeckS, 1.0, 1e-12);
  EXPECT_NEAR(o.Fs->Fs.value(), std::log(p5) - std::log(1 - p5), 1e-9);
}

TEST(OverviewStats, ReportLines) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  const OverviewStats o = ComputeOverview(ad, 1, 8, false);
  const std::string text = OverviewReportText(o);
  const std::string expected_start =
      " Number of variable sites, S: 4\r\n"
      " Total number of mutations, Eta: 4\r\n"
      " ===================== G+C content ===================== \r\n"
      " G+C content, G+C: 0.486    (7.00 sites)\r\n"
      " ============ Haplotype/Nucleotide Diversity ============ \r\n"
      " Number of Haplotypes, h: 5\r\n"
      " Haplotype (gene) diversity, Hd: 1.000\r\n"
      "    Variance of Haplotype diversity: 0.01600\r\n"
      "       Standard Deviation of Haplotype diversity: 0.126\r\n"
      " Nucleotide diversity (per site), Pi: 0.25714\r\n";
  EXPECT_EQ(text.substr(0, expected_start.size()), expected_start) << text;
  EXPECT_NE(text.find(" Average number of nucleotide differences, k: 1.800\r\n"
                      " Theta (per site) from S, Theta-W: 0.27429\r\n"
                      " Theta (per sequence) from S, Theta-W: 1.92000\r\n"
                      " ================== Neutrality Tests ================== \r\n"
                      " Tajima's D: " + Format(o.TajimaD.Value.value(), "0.00000") + "\r\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find(" Fu's Fs statistic: -3.304\r\n"
                      " Strobeck's S statistic: 1.000\r\n"
                      "    (Probability that NHap <= 5)\r\n"
                      " Probability that [NHap = 5]: 0.035\r\n"
                      " Calculation using the total number of segregating sites\r\n"),
            std::string::npos)
      << text;
}

TEST(OverviewStats, FewerThanFourSequencesSkipTheTests) {
  const auto ad = test::SelectedAlignment({"ACGT", "ACTT", "GCTT"});
  const OverviewStats o = ComputeOverview(ad, 1, 4, false);
  EXPECT_FALSE(o.TestsComputed);
  const std::string text = OverviewReportText(o);
  EXPECT_NE(text.find(" ================== Neutrality Tests ================== \r\n"
                      " Four or more sequences are need to compute Tajima's and Fu and Li's "
                      "statistics\r\n"),
            std::string::npos);
  EXPECT_EQ(text.find(" Tajima's D: "), std::string::npos);
}

TEST(OverviewStats, NoPolymorphism) {
  const auto ad = test::SelectedAlignment({"ACGT", "ACGT", "ACGT", "ACGT"});
  const OverviewStats o = ComputeOverview(ad, 1, 4, true);
  EXPECT_EQ(o.SegSites, 0);
  EXPECT_FALSE(o.TajimaD.Value.has_value());
  EXPECT_EQ(o.TajimaD.Mark, "n.d.");
  EXPECT_FALSE(o.Fs.has_value());
  EXPECT_EQ(o.Hd.value(), 0.0);
  const std::string text = OverviewReportText(o);
  EXPECT_NE(text.find(" No polymorphisms in the selected region !!!\r\n"
                      " Calculation using the total number of mutations\r\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find(" Theta (per sequence) from Eta: 0.00000\r\n"), std::string::npos);
}

TEST(OverviewStats, CodingAndNoncodingGcAndCodonChanges) {
  // Codon 2 AAA/AAG (Lys/Lys): synonymous; codon 3 CTT/ATT (Leu/Ile): nonsynonymous. Sites
  // 10 and 11 do not code.
  ActiveData ad = test::MakeAlignment({"ATGAAACTTGC", "ATGAAGCTTGC", "ATGAAAATTGG"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 9, 1));
  LeaveForm14(ad, true);
  const Selection sel = SelectOneSet(ad, 0, {1, ad.NumSites});
  const OverviewStats o = ComputeOverview(sel, 1, 11, false);
  ASSERT_TRUE(o.Changes.has_value());
  EXPECT_EQ(o.Changes->Synonymous, 1);
  EXPECT_EQ(o.Changes->Nonsynonymous, 1);
  // Coding: G or C in ATGAAACTT 2, ATGAAGCTT 3, ATGAAAATT 1, of 27 nucleotides.
  EXPECT_NEAR(o.Gc.Coding.value().Content, 6.0 / 27.0, 1e-12);
  EXPECT_EQ(o.Gc.Coding.value().Sites, 9);
  // Noncoding: GC, GC, GG: all 6 are G or C.
  EXPECT_NEAR(o.Gc.NonCoding.value().Content, 1.0, 1e-12);
  EXPECT_NEAR(o.Gc.Total.value().Content, 12.0 / 33.0, 1e-12);
  const std::string text = OverviewReportText(o);
  EXPECT_NE(text.find(" G+C content at noncoding positions, G+Cn: 1.000    (2.00 sites)\r\n"
                      " G+C content at coding positions, G+Cc: 0.222    (9.00 sites)\r\n"
                      " G+C content -Total-, G+C: 0.364    (11.00 sites)\r\n"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace ovelt

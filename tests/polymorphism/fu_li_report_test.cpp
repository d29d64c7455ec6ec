#include "analyses/polymorphism/neutrality/fu_li_report.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/neutrality/fu_li_compute.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "stats/fs_statistic.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;

TEST(FuLiTest, FiveSequencesCountingMutations) {
  // Eta = 7, Eta(s) = 6, k = 2.9 (see the fixture). Thetas: k = 2.9, (4/5) 6 = 4.8,
  // 7 / (25/12) = 3.36. D* = -0.7468200, F* = -0.8216833 (worked in fu_li_statistics_test).
  // Haplotypes: all five differ, h = 5, Hd = 1, VarHd = (2/20)(0 + 0.2 - 0.04) = 0.016.
  // Fs with theta = 2.9: P(K = 5) = 2.9^4 / (3.9 * 4.9 * 5.9 * 6.9) = 70.7281 / 777.9681
  //   = 0.0909139; P(K < 5) = 0.9090861; Fs = ln(0.0909139 / 0.9090861) = -2.3025271;
  //   Strobeck's S = P(K <= 5) = 1.
  const auto ad = test::SelectedAlignment(NeutralityRows());
  const FuLiTestResult r = ComputeFuLiTest(ad, 1, 10, true, std::nullopt);
  ASSERT_TRUE(r.Haplotypes.has_value());
  ASSERT_TRUE(r.Fs.has_value());
  const double p5 = std::pow(2.9, 4) / (3.9 * 4.9 * 5.9 * 6.9);
  EXPECT_NEAR(r.Fs->Fs.value(), std::log(p5 / (1.0 - p5)), 1e-12);
  EXPECT_NEAR(r.Fs->StrobeckS, 1.0, 1e-15);
  EXPECT_NEAR(r.Fs->PEqual, p5, 1e-15);
  EXPECT_EQ(FuLiReportBody(r),
            " Number of polymorphic (segregating) sites, S: 6\r\n"
            " Total number of mutations, Eta: 7\r\n"
            " Total number of singleton mutations, Eta(s): 6\r\n"
            "\r\n"
            " Average number of pairwise nucleotide differences, k: 2.900\r\n"
            " Nucleotide diversity, Pi: 0.29000\r\n"
            "\r\n"
            " Theta estimated from k: 2.900\r\n"
            " Theta estimated from Eta(s): 4.800\r\n"
            " Theta estimated from Eta: 3.360\r\n"
            "\r\n"
            " Fu and Li's D* test statistic: -0.74682\r\n"
            "     Statistical significance: Not significant, P > 0.10\r\n"
            " Fu and Li's F* test statistic: -0.82168\r\n"
            "     Statistical significance: Not significant, P > 0.10\r\n"
            "\r\n"
            " Calculation using the total number of mutations\r\n"
            " Number of Haplotypes, h: 5\r\n"
            " Haplotype (gene) diversity, Hd: 1.000\r\n"
            "    Variance of Haplotype diversity: 0.01600\r\n"
            "\r\n"
            " Fu's Fs statistic: -2.303\r\n"
            " Strobeck's S statistic: 1.000\r\n"
            "    (Probability that NHap <= 5)\r\n"
            " Probability that [NHap = 5]: 0.091\r\n");
}

TEST(FuLiTest, FiveSequencesCountingSites) {
  // Eta = S = 6, Eta(s) = 5 sites: D* = -0.6682294, F* = -0.5440493; thetas 4.0 and 2.88.
  const auto ad = test::SelectedAlignment(NeutralityRows());
  const FuLiTestResult r = ComputeFuLiTest(ad, 1, 10, false, std::nullopt);
  const std::string body = FuLiReportBody(r);
  EXPECT_NE(body.find(" Total number of singleton segregating sites, Eta(s): 5\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Theta estimated from Eta(s): 4.000\r\n"
                      " Theta estimated from S: 2.880\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Fu and Li's D* test statistic: -0.66823\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Fu and Li's F* test statistic: -0.54405\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Calculation using the total number of segregating sites\r\n"),
            std::string::npos);
}

TEST(FuLiTest, NoPolymorphismIsOneLineAndNoFs) {
  // k = 0: no haplotype block, no Fs block.
  const auto ad = test::SelectedAlignment({"ACGT", "ACGT", "ACGT", "ACGT"});
  const FuLiTestResult r = ComputeFuLiTest(ad, 1, 4, true, std::nullopt);
  EXPECT_FALSE(r.Haplotypes.has_value());
  EXPECT_FALSE(r.Fs.has_value());
  EXPECT_EQ(FuLiReportBody(r), " There are no polymorphisms in the selected region !!!\r\n");
}

TEST(FuLiTest, DifferencesOnlyAtGapSitesGiveNoFs) {
  // The only differences stand at a site with a gap: k = 0, so no haplotypes and no Fs.
  const auto ad = test::SelectedAlignment({"AC", "AG", "A-", "AC"});
  const FuLiTestResult r = ComputeFuLiTest(ad, 1, 2, true, std::nullopt);
  EXPECT_EQ(r.Totals.K, 0.0);
  EXPECT_EQ(FuLiReportBody(r).find("Fu's Fs"), std::string::npos);
}

TEST(FuLiTest, OutOfRangeFsPrintsItsMark) {
  FsResult fs;
  fs.StrobeckS = 0.25;
  fs.PEqual = 0.125;
  EXPECT_EQ(FsLines(fs, 12),
            " Fu's Fs statistic: 1234567.000\r\n"
            " Strobeck's S statistic: 0.250\r\n"
            "    (Probability that NHap <= 12)\r\n"
            " Probability that [NHap = 12]: 0.125\r\n");
}

TEST(FuLiTest, SignificantValuesInWords) {
  FuLiTestResult r;
  r.Sequences = 100;
  r.Totals.SegSites = 50;
  r.DStar = -3.3;  // beyond the 2 % bound of n = 100 (-3.27)
  r.FStar = 1.5;   // beyond the 10 % bound (1.47)
  r.DStarMark = SignificanceFuLi(*r.DStar, FuLiTable::kDStar, r.Sequences);
  r.FStarMark = SignificanceFuLi(*r.FStar, FuLiTable::kFStar, r.Sequences);
  const std::string body = FuLiReportBody(r);
  EXPECT_NE(body.find(" Fu and Li's D* test statistic: -3.30000\r\n"
                      "     Statistical significance: **, P < 0.02\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Fu and Li's F* test statistic: 1.50000\r\n"
                      "     Statistical significance: Not significant, 0.10 > P > 0.05\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace ovelt

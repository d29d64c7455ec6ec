#include "analyses/polymorphism/neutrality/fu_li_outgroup_report.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

TEST(FuLiOutgroupTest, FiveSequencesCountingMutations) {
  // From the fixture: L = 9, S = 5, Eta = 6, Eta(e) = 5, Eta(s) = 6, k = 2.3, Pi = 2.3 / 9.
  // D = -1.2904881 and F = -1.5438885 (worked in fu_li_statistics_test); Theta from Eta =
  // 6 / (25/12) = 2.88. H: S(1) = 5, S(4) = 1, ThetaH = 2.1, ThetaPi = 2.4, H = 0.3.
  const auto ad = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  const FuLiOutgroupResult r = ComputeFuLiOutgroupTest(ad, 1, 10, true, std::nullopt);
  ASSERT_TRUE(r.D.has_value());
  ASSERT_TRUE(r.F.has_value());
  EXPECT_NEAR(*r.D, -1.2904881, 1e-7);
  EXPECT_NEAR(*r.F, -1.5438885, 1e-7);
  EXPECT_NEAR(r.FayWu.H, 0.3, 1e-12);
  EXPECT_EQ(FuLiOutgroupHead(ad, r),
            "\r\n"
            " Input Data File: /data/sample.fas\r\n"
            " Selected region: 1-10     Number of sites: 10\r\n"
            " Total sites (excluding alignment gaps): 9\r\n"
            " Intraspecific Data: Ingroup\r\n"
            "    Number of sequences: 5\r\n"
            " Interspecific Data: Outgroup\r\n"
            "       Sequence used: seq6                \r\n"
            " =====  Intraspecific Data  =====\r\n");
  EXPECT_EQ(FuLiOutgroupReportBody(r),
            " Number of positions with ambiguous information in outgroup: 1\r\n"
            "   Site Positions: 9\r\n"
            " Number of segregating sites, S: 5\r\n"
            " Total number of mutations, Eta: 6\r\n"
            " Total number of mutations in external branches, Eta(e): 5\r\n"
            " Total number of singleton mutations, Eta(s): 6\r\n"
            "\r\n"
            " Average number of pairwise nucleotide differences, k: 2.300\r\n"
            " Nucleotide diversity, Pi: 0.25556\r\n"
            "\r\n"
            " Theta estimated from k: 2.300\r\n"
            " Theta estimated from Eta(e): 5.000\r\n"
            " Theta estimated from Eta: 2.880\r\n"
            "\r\n"
            " Fu and Li's D test statistic, FL-D: -1.29049\r\n"
            "     Statistical significance: Not significant, P > 0.10\r\n"
            " Fu and Li's F test statistic, FL-F: -1.54389\r\n"
            "     Statistical significance: Not significant, P > 0.10\r\n"
            " Fay and Wu's H test statistic, FW-H: 0.30000\r\n"
            "\r\n"
            " Calculation using the total number of mutations\r\n");
}

TEST(FuLiOutgroupTest, FiveSequencesCountingSites) {
  // Eta = 5, Eta(e) = 4: D = -1.1178236, F = -1.1173239; Theta from S = 5 * 12/25 = 2.4;
  // H: S(1) = 3, S(2) = 1, S(4) = 1, ThetaH = 2.3, ThetaPi = 2.2, H = -0.1.
  const auto ad = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  const FuLiOutgroupResult r = ComputeFuLiOutgroupTest(ad, 1, 10, false, std::nullopt);
  const std::string body = FuLiOutgroupReportBody(r);
  EXPECT_NE(body.find(" Total number of segregating sites in external branches, Eta(e): 4\r\n"
                      " Total number of singleton segregating sites, Eta(s): 5\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Theta estimated from Eta(e): 4.000\r\n"
                      " Theta estimated from S: 2.400\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Fu and Li's D test statistic, FL-D: -1.11782\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Fu and Li's F test statistic, FL-F: -1.11732\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Fay and Wu's H test statistic, FW-H: -0.10000\r\n"), std::string::npos);
}

TEST(FuLiOutgroupTest, GapsOfTheCompleteFileAreSaidInTheHead) {
  const auto ad = test::WithOutgroup(NeutralityRows(), OutgroupRow(), 2);
  const FuLiOutgroupResult r = ComputeFuLiOutgroupTest(ad, 1, 10, true, std::nullopt);
  EXPECT_NE(FuLiOutgroupHead(ad, r).find(
                " Total sites (excluding alignment gaps): 9\r\n"
                " Sites with alignment gaps in the complete data file have been excluded\r\n"),
            std::string::npos);
}

TEST(FuLiOutgroupTest, NoMutationLeavesDAndFNotDetermined) {
  const auto ad = test::WithOutgroup({"ACGT", "ACGT", "ACGT"}, "ACGA");
  const FuLiOutgroupResult r = ComputeFuLiOutgroupTest(ad, 1, 4, true, std::nullopt);
  EXPECT_FALSE(r.D.has_value());
  EXPECT_FALSE(r.F.has_value());
  const std::string body = FuLiOutgroupReportBody(r);
  EXPECT_NE(body.find(" Fu and Li's D test statistic, FL-D: n.d.\r\n"
                      "     Statistical significance: Not determined\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Fay and Wu's H test statistic, FW-H: 0.00000\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Number of positions with ambiguous information in outgroup: 0\r\n"
                      " Number of segregating sites, S: 0\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace ovelt

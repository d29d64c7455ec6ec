#include "analyses/recombination/recombination_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ovelt {
namespace {

TEST(RecombinationReport, PairsFivePerLine) {
  const std::vector<SiteInterval> pairs = {{1, 2}, {1, 3}, {2, 3}, {4, 10}, {5, 11}, {12, 130}};
  EXPECT_EQ(SitePairLines(pairs),
            "          (1,2)  (1,3)  (2,3)  (4,10)  (5,11)  \r\n"
            "          (12,130)  \r\n");
  EXPECT_EQ(SitePairLines({}), "");
}

TEST(RecombinationReport, AtMostFiveHundredPairsShown) {
  std::vector<SiteInterval> pairs;
  for (int32_t i = 1; i <= 501; ++i) pairs.push_back({i, i + 1});
  const std::string lines = SitePairLines(pairs);
  int shown = 0;
  for (const char c : lines) shown += c == '(' ? 1 : 0;
  EXPECT_EQ(shown, 500);
  EXPECT_EQ(lines.find("(501,502)"), std::string::npos);
  EXPECT_NE(lines.find("(500,501)  \r\n"), std::string::npos);
}

TEST(RecombinationReport, OneSiteOfThreeVariants) {
  EXPECT_EQ(OtherVariantLines({17}),
            "    Sites segregating for three or four nucleotides were not considered\r\n"
            "          Site position: 17\r\n");
  EXPECT_EQ(OtherVariantLines({}), "");
}

TEST(RecombinationReport, SitePositionsBreakAfterEveryFifteenth) {
  std::vector<int32_t> sites;
  for (int32_t s = 1; s <= 17; ++s) sites.push_back(s * 2);
  EXPECT_EQ(OtherVariantLines(sites),
            "    Sites segregating for three or four nucleotides were not considered\r\n"
            "          Site positions: 2 4 6 8 10 12 14 16 18 20 22 24 26 28 30\r\n"
            "          32 34\r\n");
  EXPECT_EQ(OtherVariantLines({3, 9}),
            "    Sites segregating for three or four nucleotides were not considered\r\n"
            "          Site positions: 3 9\r\n");
}

TEST(RecombinationReport, RmNotComputed) {
  RmEstimate rm;
  rm.Status = RmMemoryStatus(4999);
  EXPECT_EQ(rm.Status, 1);
  EXPECT_EQ(RmMemoryStatus(5000), 2);
  EXPECT_EQ(RmReportText(rm),
            "\r\n Minimum number of recombination events (Hudson and Kaplan 1985)\r\n"
            "    Not computed. There are too many polymorphic sites\r\n");
}

TEST(RecombinationReport, GreaterThanTenThousandLeavesOutTheAdjacentSites) {
  RecombinationResult r;
  r.SegSites = 3;
  r.Hudson.Sk2 = 0.5F;
  r.Hudson.Theta = 1.5;
  r.Hudson.G = -0.0625;
  r.Hudson.C = 10000.999;
  r.Hudson.AboveLimit = true;
  r.Hudson.NetDistance = 12.25F;
  EXPECT_EQ(HudsonReportText(r),
            " Number of polymorphic (segregating) sites, S: 3\r\n"
            "\r\n"
            " Estimate of the recombination parameter, R (or C) (Hudson 1987)\r\n"
            "    Variance of the sample distribution of Kij, Sk^2: 0.500\r\n"
            "    Estimate of Theta, per gene: 1.500\r\n"
            "    Value of the function g(C,n): -0.0625\r\n"
            "    Estimate of R, per gene:   Greater than 10000\r\n"
            "    Average nucleotide distance between the most distant sites: 12.25\r\n");
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/diversity/dna_polymorphism_report.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

PolyStats Stats() {
  PolyStats s;
  s.NetSites = 8;
  s.SegSites = 5;
  s.Mutations = 6;
  s.AvgDiffs = 2.5;
  s.PiValue = 0.3125;
  return s;
}

HaplotypeStats Haplotypes(int32_t h, double hd, double var) {
  HaplotypeStats stats;
  stats.Haplotypes = h;
  stats.Hd = hd;
  stats.VarHd = var;
  return stats;
}

TEST(PolymorphismFirstBlock, OtherAnalysesStopAfterEta) {
  // The other reports give no haplotypes.
  EXPECT_EQ(PolymorphismFirstBlock(Stats()),
            " Number of polymorphic (segregating) sites, S: 5\r\n"
            " Total number of mutations, Eta: 6\r\n");
}

TEST(PolymorphismFirstBlock, HdPrecisionSwitchesAtAHundredHaplotypes) {
  // VarHd 0.00012345: five decimals below 100 haplotypes, seven from 100 on; its square root
  // 0.0111108 takes three and four.
  const std::string few = PolymorphismFirstBlock(Stats(), Haplotypes(99, 0.98765, 0.00012345));
  EXPECT_NE(few.find(" Haplotype (gene) diversity, Hd: 0.988\r\n"), std::string::npos) << few;
  EXPECT_NE(few.find("    Variance of Haplotype diversity: 0.00012\r\n"), std::string::npos);
  EXPECT_NE(few.find("       Standard Deviation of Haplotype diversity: 0.011\r\n"),
            std::string::npos);
  const std::string many =
      PolymorphismFirstBlock(Stats(), Haplotypes(100, 0.98765, 0.00012345));
  EXPECT_NE(many.find(" Haplotype (gene) diversity, Hd: 0.9877\r\n"), std::string::npos) << many;
  EXPECT_NE(many.find("    Variance of Haplotype diversity: 0.0001235\r\n"), std::string::npos);
  EXPECT_NE(many.find("       Standard Deviation of Haplotype diversity: 0.0111\r\n"),
            std::string::npos);
}

TEST(PolymorphismReportLines, SamplingVarianceAndJukesCantor) {
  EXPECT_EQ(SamplingVarianceLines({0.002025, 0.045}),
            "    Sampling variance of Pi: 0.0020250\r\n"
            "       Standard deviation of Pi: 0.04500\r\n");
  EXPECT_EQ(JukesCantorLine(0.41197958),
            " Nucleotide diversity (Jukes and Cantor), Pi(JC): 0.41198\r\n");
}

}  // namespace
}  // namespace ovelt

#include "coalescent/simulation_report.h"

#include <gtest/gtest.h>

#include "coalescent/statistic_code.h"
#include "simulation_test_support.h"

namespace ovelt {
namespace {

TEST(SimulationReport, ThetaGivenWithoutRecombination) {
  const SimulationSpec s = testing::ThetaSpec(kCodeTajimaD, 10, 12.0, 1000, 0);
  SimulationResult r;
  r.LowerLimit = -1.5;
  r.UpperLimit = 1.75;
  r.ProbabilityLE = 0.512;
  r.AverageStatistic = -0.0123;
  r.AveragePi = 11.987654;
  r.EffectiveReplicates = 998;
  r.Seed = 111295;
  EXPECT_EQ(SimulationReportText(s, r),
            " ====== Input Data ======\r\n"
            "   Simulations given theta\r\n"
            "   Value of Theta: 12.0000\r\n"
            "   Sample size: 10\r\n"
            "   No recombination\r\n"
            "   Observed value of Tajima's D : 0.0000\r\n"
            "   Confidence Interval: 95.000\r\n"
            "   Number of Replicates: 1000\r\n"
            "   Pseudorandom Number Seed: 111295\r\n"
            " ====== Output ======\r\n"
            "\r\n"
            "   Confidence Interval. Lower Limit: -1.50000\r\n"
            "   Confidence Interval. Upper Limit: 1.75000\r\n"
            "   P [D <= 0.0000]: 0.51200\r\n"
            "   Average value of D: -0.01230\r\n"
            "   Average value of Pi: 11.98765\r\n"
            "   Effective Number of Replicates: 998\r\n");
}

TEST(SimulationReport, SegregatingSitesGivenWithIntermediateRecombination) {
  SimulationSpec s = testing::SegSitesSpec(kCodeHd, 25, 30, 500, 42);
  s.ObservedValue = 0.875;
  s.ConfidencePercent = 99.5f;
  s.RecombinationChoice = 2;
  s.RecombinationR = 12.5;
  s.SitesInRegion = 2000;
  SimulationResult r;
  r.LowerLimit = 0.5;
  r.UpperLimit = 1.0;
  r.ProbabilityLE = 0.25;
  r.AverageStatistic = 0.8;
  r.AveragePi = 7.0;
  r.EffectiveReplicates = 500;
  r.Seed = 42;
  EXPECT_EQ(SimulationReportText(s, r),
            " ====== Input Data ======\r\n"
            "   Simulations given the number of segregating sites\r\n"
            "   Number of Segregating Sites: 30\r\n"
            "   Sample size: 25\r\n"
            "   Recombination parameter: 12.5\r\n"
            "   Number of sites: 2000\r\n"
            "   Observed value of Haplotype Diversity, Hd : 0.8750\r\n"
            "   Confidence Interval: 99.500\r\n"
            "   Number of Replicates: 500\r\n"
            "   Pseudorandom Number Seed: 42\r\n"
            " ====== Output ======\r\n"
            "\r\n"
            "   Confidence Interval. Lower Limit: 0.50000\r\n"
            "   Confidence Interval. Upper Limit: 1.00000\r\n"
            "   P [Hd <= 0.8750]: 0.25000\r\n"
            "   Average value of Hd: 0.80000\r\n"
            "   Average value of Pi: 7.00000\r\n"
            "   Effective Number of Replicates: 500\r\n");
}

TEST(SimulationReport, FreeRecombinationLine) {
  SimulationSpec s = testing::ThetaSpec(kCodeWallQ, 6, 3.0, 10, 1);
  s.RecombinationChoice = 1;
  const std::string text = SimulationReportText(s, SimulationResult{});
  EXPECT_NE(text.find("\r\n   Free recombination\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n   Observed value of Wall's Q : 0.0000\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n   P [Q <= 0.0000]: 0.00000\r\n"), std::string::npos);
}

}  // namespace
}  // namespace ovelt

#include "coalescent/simulation_report.h"

#include "coalescent/statistic_code.h"
#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {
namespace {

std::string Line(const std::string& text) {
  return text + kCrLf;
}

}  // namespace

std::string ProbabilityCaption(const SimulationSpec& sim) {
  const StatisticEntry* e = FindStatistic(sim.StatisticCode);
  return std::string("P [") + e->Symbol + " <= " + Format(sim.ObservedValue, "0.0000") + "]:";
}

std::string SimulationReportText(const SimulationSpec& sim, const SimulationResult& result) {
  const StatisticEntry* e = FindStatistic(sim.StatisticCode);
  std::string t;
  t += Line(" ====== Input Data ======");
  if (sim.SegSitesGiven()) {
    t += Line("   Simulations given the number of segregating sites");
    t += Line("   Number of Segregating Sites: " + StrNum(sim.SegSites));
  } else {
    t += Line("   Simulations given theta");
    t += Line("   Value of Theta: " + Format(sim.Theta, "0.0000"));
  }
  t += Line("   Sample size: " + StrNum(sim.SampleSize));
  if (sim.RecombinationChoice == 2) {
    t += Line("   Recombination parameter: " + StrNum(sim.RecombinationR));
    t += Line("   Number of sites: " + StrNum(sim.SitesInRegion));
  } else if (sim.RecombinationChoice == 1) {
    t += Line("   Free recombination");
  } else {
    t += Line("   No recombination");
  }
  t += Line(std::string("   Observed value of ") + e->Name + " : " +
            Format(sim.ObservedValue, "0.0000"));
  t += Line("   Confidence Interval: " + Format(sim.ConfidencePercent, "0.000"));
  t += Line("   Number of Replicates: " + StrNum(sim.Replicates));
  t += Line("   Pseudorandom Number Seed: " + StrNum(result.Seed));
  t += Line(" ====== Output ======");
  t += Line("");
  t += Line("   Confidence Interval. Lower Limit: " + Format(result.LowerLimit, "0.00000"));
  t += Line("   Confidence Interval. Upper Limit: " + Format(result.UpperLimit, "0.00000"));
  t += Line("   " + ProbabilityCaption(sim) + " " + Format(result.ProbabilityLE, "0.00000"));
  t += Line(std::string("   Average value of ") + e->Symbol + ": " +
            Format(result.AverageStatistic, "0.00000"));
  t += Line("   Average value of Pi: " + Format(result.AveragePi, "0.00000"));
  t += Line("   Effective Number of Replicates: " + StrNum(result.EffectiveReplicates));
  return t;
}

}  // namespace ovelt

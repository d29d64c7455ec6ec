#pragma once
// A run of "The Coalescent": the inputs as read from the fields and the numbers of the
// replicates. The run needs no data file; its report is a text result that is saved, printed
// and copied to the session file as any other.

#include <cstdint>
#include <optional>
#include <string>

#include "coalescent/simulation_input.h"
#include "coalescent/simulation_run.h"
#include "coalescent/statistic_code.h"

namespace ovelt {

inline constexpr const char* kCoalescentBusyStatus = "Computing...";
inline constexpr const char* kCoalescentDoneStatus = "Coalescent Simulations";

struct CoalescentRun {
  SimulationSpec Input;
  SimulationResult Result;
  int32_t Threads = 1;

  // The limits, the probability and the averages stand for something only when a replicate
  // gave a value of the statistic.
  [[nodiscard]] std::optional<double> Determined(double value) const {
    return Result.EffectiveReplicates > 0 ? std::optional<double>(value) : std::nullopt;
  }

  template <class V>
  void Visit(V& v) const {
    const StatisticEntry* e = FindStatistic(Input.StatisticCode);
    if (Input.SegSitesGiven()) {
      v.Integer("segregating_sites", Input.SegSites);
    } else {
      v.Number("theta", Input.Theta);
    }
    v.Integer("sequences", Input.SampleSize);
    v.Integer("replicates", Input.Replicates);
    v.Text("statistic", e != nullptr ? e->CliName : "");
    v.Integer("statistic_code", Input.StatisticCode);
    v.Number("observed", Input.ObservedValue);
    v.Number("confidence_percent", Input.ConfidencePercent);
    v.Integer("recombination_choice", Input.RecombinationChoice);
    v.Number("recombination_r", Input.RecombinationR);
    v.Integer("sites", Input.SitesInRegion);
    v.Integer("seed", Result.Seed);
    v.Integer("threads", Threads);
    v.Optional("lower_limit", Determined(Result.LowerLimit));
    v.Optional("upper_limit", Determined(Result.UpperLimit));
    v.Optional("probability_le", Determined(Result.ProbabilityLE));
    v.Optional("average_statistic", Determined(Result.AverageStatistic));
    v.Optional("average_pi", Determined(Result.AveragePi));
    v.Integer("effective_replicates", Result.EffectiveReplicates);
    v.Integer("failed_replicates", Result.FailedReplicates);
    v.Integer("tail_size", Result.TailSize);
  }
};

// The notice of a run in which no replicate gave a value of the statistic (with a theta as small
// as 1e-7 no simulated sample has a segregating site, and Tajima's D of such a sample is not
// defined): the limits, the probability and the averages then stand for nothing, and the report
// alone would show them as plain zeros. nullopt when a replicate counted.
[[nodiscard]] std::optional<SimulationMessage> NoEffectiveReplicatesNotice(const CoalescentRun& run);

}  // namespace ovelt

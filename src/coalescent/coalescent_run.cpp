#include "coalescent/coalescent_run.h"

namespace ovelt {

std::optional<SimulationMessage> NoEffectiveReplicatesNotice(const CoalescentRun& run) {
  if (run.Result.EffectiveReplicates > 0) return std::nullopt;
  const StatisticEntry* e = FindStatistic(run.Input.StatisticCode);
  const std::string name = e != nullptr ? e->Name : "the statistic";
  return SimulationMessage{"There are 0 effective replicates: no replicate gave a value of " +
                           name +
                           ".\nThe confidence limits, the probability and the average values "
                           "can not be determined. Try a larger theta or more replicates."};
}

}  // namespace ovelt

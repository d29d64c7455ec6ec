#pragma once
// The report of a coalescent run: the input data, then the limits, the probability, the
// averages and the effective number of replicates, each line ended by CR LF.

#include <string>

#include "coalescent/simulation_run.h"
#include "coalescent/simulation_input.h"

namespace ovelt {

// "P [<symbol> <= <observed in 0.0000>]:", the caption of the probability after a run.
[[nodiscard]] std::string ProbabilityCaption(const SimulationSpec& sim);

[[nodiscard]] std::string SimulationReportText(const SimulationSpec& sim,
                                               const SimulationResult& result);

}  // namespace ovelt

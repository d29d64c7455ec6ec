#pragma once
// A run of "The Coalescent" once "Run" was pressed: the checks of the typed fields, the
// replicates, and the report left in the output channel as a text result, so that it is saved,
// printed and copied to the session file as any other. The run needs no data file.
//
// A refusal computes nothing, leaves the previous output as it stands and sets `ReopenDialog`;
// an error inside the run sets `RunFailed` and writes no report. Either way the caller shows the
// returned message in a box titled "Ovelt".

#include <cstdint>
#include <optional>

#include "coalescent/simulation_run.h"
#include "coalescent/simulation_input.h"
#include "output/json_text.h"
#include "output/output_channel.h"

namespace ovelt {

inline constexpr const char* kCoalescentBusyStatus = "Computing...";
inline constexpr const char* kCoalescentDoneStatus = "Coalescent Simulations";

struct CoalescentRun {
  SimulationSpec Input;
  SimulationResult Result;
  int32_t Threads = 1;
};

// `threads` below 2 runs the one stream of the seed; see RunSimulation.
[[nodiscard]] std::optional<SimulationMessage> RunCoalescent(OutputChannel& channel,
                                                             const SimulationForm& form,
                                                             int32_t threads = 1,
                                                             CoalescentRun* run = nullptr);

// The notice of a run in which no replicate gave a value of the statistic (with a theta as small
// as 1e-7 no simulated sample has a segregating site, and Tajima's D of such a sample is not
// defined): the limits, the probability and the averages then stand for nothing, and the report
// alone would show them as plain zeros. nullopt when a replicate counted.
[[nodiscard]] std::optional<SimulationMessage> NoEffectiveReplicatesNotice(const CoalescentRun& run);

// The inputs and the results as one JSON object of plain numbers.
void WriteJson(JsonText& json, const CoalescentRun& run);

}  // namespace ovelt

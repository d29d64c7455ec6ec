#pragma once
// A coalescent run: the replicates of a SimulationSpec, the statistic of each, and what the
// report shows of them (average, probability of a value not above the observed one, confidence
// limits, effective replicates). A result of plain numbers; no text.
//
// The default run draws every replicate from one stream started by the seed. With two or more
// threads the replicates are cut into blocks of kReplicatesPerBlock, each drawn from a stream of
// its own (BlockSeedVariable), and the blocks' results are merged in block order: the result of
// a seed is then the same for any number of threads, but differs from that of the one stream.

#include <cstdint>
#include <functional>

#include "coalescent/simulation_input.h"

namespace ovelt {

inline constexpr int32_t kReplicatesPerBlock = 1000;

struct SimulationResult {
  double ProbabilityLE = 0.0;
  double AverageStatistic = 0.0;
  double AveragePi = 0.0;
  double LowerLimit = 0.0;
  double UpperLimit = 0.0;
  int32_t EffectiveReplicates = 0;
  int32_t FailedReplicates = 0;
  int32_t TailSize = 0;  // k
  int32_t Seed = 0;      // the seed that ran (0 replaced)
};

// Called with the percentage of replicates done, on the caller's thread.
using SimulationProgress = std::function<void(int percent)>;

// The seed variable that starts block `block` (from 0) of a threaded run: a mix of the seed and
// the block number (SplitMix64) brought into the range of distinct starts of the generator, and
// made negative so that the first draw initialises the stream.
[[nodiscard]] int32_t BlockSeedVariable(int32_t seed, int32_t block);

// Runs `sim`, which must have passed ReadSimulationForm. `threads` below 2 is the single
// stream. Errors inside a replicate propagate as exceptions (StatsError, std::runtime_error,
// std::bad_alloc).
[[nodiscard]] SimulationResult RunSimulation(const SimulationSpec& sim,
                                             const SimulationProgress& progress = {},
                                             int32_t threads = 1);

}  // namespace ovelt

#pragma once
// The options of "Gene Flow and Genetic Differentiation" (`Form9c`, or the flags of
// `ovelt gene-flow`): the region, the treatment of gaps, and the permutation test with its
// replicates and seed. The populations are the active sequence sets.

#include <cstdint>
#include <limits>
#include <optional>

#include "core/command_options.h"

namespace ovelt {

inline constexpr int32_t kMaxFlowReplicates = 50000;

struct GeneFlowOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t GapMode = 1;
  bool Permutation = false;
  int32_t Replicates = 1000;
  int32_t Seed = 1;  // 0 runs as 111295

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.Choice(
        GapMode,
        {"gaps", "Sites with Alignment Gaps are...", "How sites with alignment gaps are treated"},
        {"excluded", "excluded only in pairwise comparisons",
         "considered (gap as the fifth state)"},
        1);
    v.Flag(Permutation, {"permutation", "Permutation test",
                         "Test the differentiation statistics by permuting the sequences"});
    v.Integer(Replicates,
              {"replicates", "Number of replicates:",
               "Replicates of the permutation test (with --permutation), 1 to 50000"},
              std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max());
    v.Integer(Seed, {"seed", "Seed:", "Seed of the permutation test (0 runs as 111295)"}, 0,
              std::numeric_limits<int32_t>::max());
  }
};

// The dialog's checks on OK: the replicates (when the test is on), then the region.
[[nodiscard]] std::optional<SelectionRefusal> ValidateGeneFlowOptions(
    const GeneFlowOptions& options, int32_t num_sites);

}  // namespace ovelt

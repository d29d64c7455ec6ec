#pragma once
// DNA divergence between two populations over one region, in the order of a run: `SiteDxy` of
// the two classified selections, the sums (Pi, Dxy, Da, k(t)), the four kinds of mutation, and,
// when asked for and the region has a net site, the Jukes and Cantor means with their variances.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/common/mutation_kinds.h"
#include "analyses/divergence/dna_divergence/divergence_jukes_cantor.h"
#include "analyses/divergence/dna_divergence/divergence_sums.h"
#include "analyses/divergence/dna_divergence/divergence_variances.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

struct DnaDivergenceResult {
  std::string FilePath;
  bool GapsExcludedInFile = false;  // `GapsInSets` 2
  std::string Name1, Name2;         // the names of the two sequence sets
  bool ComputeVariances = false;
  int32_t RegionFrom = 0, RegionTo = 0;
  int32_t N1 = 0, N2 = 0;
  std::vector<double> SiteDxy;  // every site of the file, index 0 unused
  DivergenceSums Sums;
  MutationKinds Kinds;
  // Present when the variances were asked for and L is at least 1.
  std::optional<DivergenceJukesCantor> JukesCantor;
  std::optional<DivergenceVariances> Variances;
};

// Over the region of `sel`, whose first and second selections are classified (`ClassifyFirst`,
// `ClassifySecond`).
[[nodiscard]] DnaDivergenceResult ComputeDnaDivergence(const Selection& sel,
                                                       bool compute_variances,
                                                       const Progress& progress = {});

}  // namespace ovelt

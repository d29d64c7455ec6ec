#pragma once
// Mutations on the genealogies of the stretches of a recombining region, under the infinite
// sites model. With theta given, a stretch receives a Poisson number of mutations of mean
// theta x (its sites / all sites) x (its tree length), time being in units of 4N generations.
// With S given, the S mutations fall on the stretches in proportion to tree length x sites.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "coalescent/recombination_stretches.h"
#include "stats/poisson.h"
#include "stats/random.h"

namespace ovelt {

// Counts, into `counts` (one per weight), where each of `total` draws x = U x (sum of weights)
// falls along the running sum of the weights (the first position whose sum reaches x).
// `cumulative` is scratch storage.
void SpreadFixedMutations(std::span<const double> weights, int32_t total, int32_t& seed,
                          RandomState& random, std::vector<double>& cumulative,
                          std::span<int32_t> counts);

// Sets to 1 the cells of `column` (n rows) of the sequences below `node` in the entry's tree.
// `stack` is scratch storage.
void MarkDescendants(const RecombinationStretches& stretches, int32_t entry, int32_t node,
                     int16_t* column, std::vector<int32_t>& stack);

}  // namespace ovelt

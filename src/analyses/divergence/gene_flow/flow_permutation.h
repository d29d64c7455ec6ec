#pragma once
// The permutation test of the differentiation statistics (Hudson, Boos and Kaplan 1992): the
// sequences of a universe are shuffled among its populations, each keeping its size, and the
// statistics of every replicate are set against the observed ones. No distance is recomputed:
// a replicate only regroups the haplotype counts. Hs, Ks, Ks*, Zs and Zs* count when the
// replicate is at or below the observed value, Snn when at or above; P = count / replicates.
//
// The shuffle walks the array of sequences from its last element down to its second, swapping
// element i (from 1) with element Int(i u) + 1, u from `Ran`; each replicate starts from the
// order the previous one left.

#include <cstdint>
#include <vector>

#include "analyses/divergence/gene_flow/flow_statistics.h"
#include "stats/random.h"

namespace ovelt {

// The generator of one run, seeded once: seed 0 runs as 111295, and the first call passes the
// seed negated.
struct FlowRandom {
  explicit FlowRandom(int32_t seed) : Seed(-(seed == 0 ? 111295 : seed)) {}
  double Next() { return Ran(Seed, State); }

  int32_t Seed;
  RandomState State;
};

// P of Hs, Ks, Ks*, Zs, Zs*, Snn over `replicates` shuffles of `sequences` (the universe's,
// population after population, `sizes` each).
[[nodiscard]] TestedValues PermutationTest(const FlowUniverse& u, std::vector<int32_t> sequences,
                                           const std::vector<int32_t>& sizes,
                                           const TestedValues& observed, int32_t replicates,
                                           FlowRandom& random);

}  // namespace ovelt

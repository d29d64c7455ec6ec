#pragma once
// The tables a gene-flow run reads and never recomputes: the haplotypes of the sequences and
// the number of differences between every two haplotypes. A pair of sequences is then looked up
// by its haplotypes, in the observed populations and in every replicate of the permutation test
// alike.

#include <cstdint>
#include <vector>

#include "analyses/divergence/gene_flow/gene_flow_sample.h"

namespace ovelt {

struct FlowTables {
  std::vector<int32_t> HaplotypeOf;  // per sequence of the sample
  int32_t Haplotypes = 0;
  std::vector<int32_t> Dist;  // Haplotypes x Haplotypes
  int32_t MaxDist = 0;

  [[nodiscard]] int32_t D(int32_t a, int32_t b) const {
    return Dist[static_cast<size_t>(a) * static_cast<size_t>(Haplotypes) + static_cast<size_t>(b)];
  }
};

// Differences over the varying sites: in gap mode 2 a site where either has a gap is skipped, in
// mode 3 a gap is one more state.
[[nodiscard]] int32_t SequenceDifferences(const std::string& a, const std::string& b,
                                          int16_t gap_mode);

[[nodiscard]] FlowTables BuildFlowTables(const GeneFlowSample& sample);

// How many sequences of a group carry each haplotype: (haplotype, count) by haplotype.
using HaplotypeCounts = std::vector<std::pair<int32_t, int32_t>>;

// The ranks of the distances among the sequences of a universe (the whole run, or a pair of
// populations): the n(n-1)/2 pair distances in ascending order, a run of t equal values from
// position p ranked p + (t - 1)/2. Indexed by distance.
struct DistanceRanks {
  std::vector<double> Rank;     // 0 .. MaxDist; 0 for a distance no pair has
  std::vector<double> LogRank;  // ln of the rank
};
[[nodiscard]] DistanceRanks RankDistances(const FlowTables& tables, const HaplotypeCounts& all);

// The nearest neighbours of each haplotype within a universe (Hudson 2000): the haplotypes at
// the least distance from it among the other sequences of the universe (itself when another
// sequence carries it, or another haplotype at distance 0).
struct NearestNeighbours {
  std::vector<std::vector<int32_t>> Of;  // per haplotype, those at the least distance
  std::vector<int32_t> Count;            // per haplotype, the sequences at that distance
};
[[nodiscard]] NearestNeighbours FindNearestNeighbours(const FlowTables& tables,
                                                      const HaplotypeCounts& all);

}  // namespace ovelt

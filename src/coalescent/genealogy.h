#pragma once
// One random genealogy of n sampled sequences under the neutral coalescent with constant
// population size (Kingman 1982; Hudson 1990), as flat node tables, and the mutations placed on
// its branches under the infinite-sites model.
//
// Nodes 0 .. n-1 are the sampled sequences, n .. 2(n-1) the internal nodes in the order in which
// they coalesce, so the last one is the root and a parent always has a higher number than its
// children. Times are in units of 2N generations: with k lineages the next coalescence comes
// after an exponential time of mean 2 / (k (k - 1)), and the expected time to the most recent
// common ancestor is 2 (1 - 1/n).

#include <cstddef>
#include <cstdint>
#include <vector>

#include "coalescent/coalescent_random.h"

namespace ovelt {

inline constexpr int32_t kNoParent = -1;

struct Genealogy {
  int32_t n = 0;
  std::vector<int16_t> Parent;       // TreeNodes row 0; the root has kNoParent
  std::vector<int16_t> FirstChild;   // row 1; -1 for a sampled sequence
  std::vector<int16_t> SecondChild;  // row 2
  std::vector<double> NodeTimes;     // 0 for the sampled sequences
  std::vector<int32_t> BranchMutations;  // mutations on the branch above each node
  std::vector<int16_t> Lineages;     // working list of MakeTree
  std::vector<double> LengthSums;    // running sums of branch lengths for FixedMutations

  // Sizes the tables for n sequences (n >= 2); called once per run.
  void Allocate(int32_t sampleSize);
  [[nodiscard]] int32_t NodeCount() const { return 2 * n - 1; }
  [[nodiscard]] int32_t Root() const { return 2 * n - 2; }
  [[nodiscard]] double BranchLength(int32_t node) const {
    return NodeTimes[static_cast<size_t>(Parent[static_cast<size_t>(node)])] -
           NodeTimes[static_cast<size_t>(node)];
  }
  // Sum of all branch lengths: twice the root's time plus the times of the other internal nodes.
  [[nodiscard]] double TreeLength() const;
};

// The random topology: two lineages drawn among the k left, joined into the next node.
void MakeTree(Genealogy& g, CoalescentRandom& random);
// The coalescence times: -2 ln(1 - U) / (k (k - 1)) for each interval with k lineages.
void MakeTimes(Genealogy& g, CoalescentRandom& random);
// A Poisson number of mutations of mean theta x length / 2 on each branch; returns S.
int32_t PoissonMutations(Genealogy& g, double theta, CoalescentRandom& random);
// Exactly `segSites` mutations, each on a branch drawn with probability proportional to its
// length.
void FixedMutations(Genealogy& g, int32_t segSites, CoalescentRandom& random);

}  // namespace ovelt

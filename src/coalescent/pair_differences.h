#pragma once
// The number of nucleotide differences of every pair of sampled sequences of one replicate,
// and their mean, the average number of pairwise differences Pi (Tajima 1983).
//
// On a genealogy the differences of sequences i and j are the mutations on the branches of the
// path that joins them, the branch above their most recent common ancestor excluded. With C(v)
// the mutations on the branches from node v up to the root (the root's own excluded), that is
// C(i) + C(j) - 2 C(ancestor), which the pairs that meet at each node take at once.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "coalescent/genealogy.h"
#include "coalescent/haplotype_matrix.h"
#include "coalescent/leaf_order.h"

namespace ovelt {

struct PairDifferenceTable {
  int32_t n = 0;
  std::vector<int32_t> Cells;  // (i, j) with i < j at i * n + j
  std::vector<int32_t> AboveRoot;  // C(v) by node, working values
  std::vector<uint64_t> RowBits;   // working rows of the matrix, 64 columns per word
  int64_t Sum = 0;
  double PairwiseAverage = 0.0;

  void Allocate(int32_t sampleSize);
  [[nodiscard]] int64_t PairCount() const { return static_cast<int64_t>(n) * (n - 1) / 2; }
  [[nodiscard]] int32_t at(int32_t i, int32_t j) const {
    return Cells[static_cast<size_t>(i) * static_cast<size_t>(n) + static_cast<size_t>(j)];
  }
};

// Every pair's differences from the tree; `leaves` must be built on `g`.
void PairDifferencesFromTree(const Genealogy& g, const LeafOrder& leaves, PairDifferenceTable& t);
// Only the sum and Pi, with no table: each branch's mutations count once for each of the
// size x (n - size) pairs it separates.
void PairDifferenceSumFromTree(const Genealogy& g, const LeafOrder& leaves,
                               PairDifferenceTable& t);
// Every pair's differences from a 0/1 matrix: the columns at which the two rows differ.
void PairDifferencesFromMatrix(const HaplotypeMatrix& m, PairDifferenceTable& t);

}  // namespace ovelt

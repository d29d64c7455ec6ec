#pragma once
// How many sequences carry A, C, G, T and "-" at each site: what the site classes and the
// per-site diversities are read from. The counting runs over many sites at once, sequence by
// sequence, so that it reads the matrix in the order it lies in memory (the cells of one
// sequence are contiguous); a plain site-by-site count is kept beside it as the reference.

#include <array>
#include <cstdint>
#include <span>

#include "core/seq_matrix.h"

namespace ovelt {

struct SiteCounts {
  std::array<int32_t, 4> nucleotide{};  // A, C, G, T
  int32_t gap = 0;                      // "-"; the cells counted nowhere are missing data

  [[nodiscard]] int32_t nucleotides() const {
    return nucleotide[0] + nucleotide[1] + nucleotide[2] + nucleotide[3];
  }
  friend bool operator==(const SiteCounts&, const SiteCounts&) = default;
};

// Counts of sites `first` .. `first + out.size() - 1` over the first `seqs` sequences of
// `matrix` (sites and sequences from 1).
void CountSites(const SeqMatrix& matrix, int32_t seqs, int32_t first, std::span<SiteCounts> out);

// The same counts of one site, cell by cell.
[[nodiscard]] SiteCounts CountSitePlain(const SeqMatrix& matrix, int32_t seqs, int32_t site);

// Walks sites 1 .. `sites` in blocks, handing each site number with its counts to `visit`.
template <typename Visit>
void ForEachSiteCounts(const SeqMatrix& matrix, int32_t seqs, int32_t sites, Visit&& visit) {
  constexpr int32_t kBlock = 4096;  // the counters of a block stay in the first-level cache
  std::array<SiteCounts, kBlock> block;
  for (int32_t first = 1; first <= sites; first += kBlock) {
    const int32_t width = sites - first + 1 < kBlock ? sites - first + 1 : kBlock;
    const std::span<SiteCounts> counts(block.data(), static_cast<size_t>(width));
    CountSites(matrix, seqs, first, counts);
    for (int32_t k = 0; k < width; ++k) visit(first + k, counts[static_cast<size_t>(k)]);
  }
}

}  // namespace ovelt

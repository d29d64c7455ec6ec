#pragma once
// The sites a linkage run analyses and the order of the two nucleotides of each.
//
// A site enters when it has two nucleotides and no gap or missing data among the sequences in
// use: parsimony informative (class 2), or a singleton too (class 1) when all polymorphic sites
// are asked for. Its two nucleotides are ordered so that the more frequent comes first, and at a
// tie the nucleotide of sequence 1: the sign of D and R depends on that order.

#include <cstdint>
#include <vector>

#include "core/seq_matrix.h"

namespace ovelt {

struct AllelePair {
  char First = 0;   // position 1: the more frequent nucleotide (sequence 1's at a tie)
  char Second = 0;  // position 2
};

// The pair of a biallelic site of `matrix` over its sequences 1..n: the nucleotide of sequence 1
// and the nucleotide of the last sequence that differs from it, the first of them in position 1
// when it is carried by at least n/2 sequences.
[[nodiscard]] AllelePair AllelePairAt(const SeqMatrix& matrix, int32_t site, int32_t n);

struct AnalysedSites {
  std::vector<int32_t> Sites;        // ascending site numbers
  std::vector<AllelePair> Alleles;   // one per entry of Sites
  bool ThreeOrFourVariants = false;  // the range holds a site with three or four nucleotides
};

// The analysed sites of `from`..`to` by their classes (`site_class`, indexed by site number).
[[nodiscard]] AnalysedSites FindAnalysedSites(const SeqMatrix& matrix, int32_t n,
                                              const std::vector<int16_t>& site_class, int32_t from,
                                              int32_t to, bool all_sites);

}  // namespace ovelt

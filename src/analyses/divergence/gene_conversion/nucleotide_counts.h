#pragma once
// The counts of A, T, C and G in one column of a population, in that order: the order in which
// the gene-conversion rules test the nucleotides.

#include <array>
#include <cstdint>

#include "core/seq_matrix.h"

namespace ovelt {

inline constexpr std::array<char, 4> kConversionNucleotides = {'A', 'T', 'C', 'G'};

using NucleotideCounts = std::array<int32_t, 4>;

// Index of `cell` in A, T, C, G (lower case too); -1 for anything else.
[[nodiscard]] int NucleotideIndex(char cell);

// Over the first `seqs` sequences of `matrix` at `site`.
[[nodiscard]] NucleotideCounts CountNucleotides(const SeqMatrix& matrix, int32_t seqs,
                                                int32_t site);

}  // namespace ovelt

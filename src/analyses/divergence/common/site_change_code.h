#pragma once
// `SiteChangeCode`: the mutations of each site of a complete codon, read off the different codons
// of its column. Each digit of a positive code is one mutation, 1 nonsynonymous and 2 synonymous,
// in ascending order (1, 2, 11, 12, 22, 111, 112, 122, 222); 9 is a classified site without
// variation; 0 a site outside any complete codon of the region; -5 a site of a codon left out for
// a gap or missing datum; -9 a site without variation in a codon with complex paths; -2, -3, -4
// a varying site of such a codon, minus its number of nucleotide variants (a site with one or two
// variants gives -2).
//
// For the n different codons of a column (ascending codon index), their n(n - 1)/2 pairs and the
// P positions at which any pair differs:
//   n = 2  the pair's classification (codon_pair_classes.h); two codons of the same amino acid
//          that differ at two or three positions count a synonymous change at each.
//   n = 3  P = 1: the values of the three pairs summed: 3 gives 11, 4 gives 12, 6 gives 22.
//          P = 2 with one pair differing at both positions: the other two pairs classify the
//          positions they change. P = 2 with one pair differing at a single position: the two
//          networks of that pair and one other are scored (a position changed by both of its
//          pairs takes the two-digit code) and the network with the greater sum of codes, the
//          more synonymous one, stands; equal sums, or sums 9 apart (the same changes placed
//          differently) are a tie. Any other P = 2 and P = 3: complex.
//   n = 4  P = 1: the six pair values summed: 6 gives 111, 7 gives 112, 8 or 9 give 122, 12 gives
//          222. P = 2 under a nuclear code, when the four codons form a square (each position
//          differs in four of the six pairs): each position takes the greatest value of the four
//          one-step pairs, and when both then hold 2 but not all four steps are synonymous, the
//          first gets 1. Anything else: complex.
//   n > 4  complex.
//
// The table is a value of the sequences it was made from. An analysis makes it for the
// sequences it reads: `FirstColumns(selection)` for the sequences of its run (this is what the
// full file's or the included sequences' table would give when the selection is all of them),
// and `SecondColumns(selection)` for a second data set, such as the second species of the
// McDonald and Kreitman test or the interspecific data of the polymorphism and divergence
// commands, after `ClassifySecond(selection)`; `FileColumns` and `IncludedColumns` give the
// tables of the file's and of the included sequences. Nothing of it is kept in the active data,
// so it always follows the sequences, coding regions and genetic code of the moment.

#include <cstdint>
#include <vector>

#include "analyses/divergence/common/classification_rules.h"
#include "analyses/divergence/common/codon_columns.h"
#include "core/genetic_code.h"

namespace ovelt {

inline constexpr int16_t kCodeUnclassified = 0;
inline constexpr int16_t kCodeInvariant = 9;
inline constexpr int16_t kCodeGapCodon = -5;
inline constexpr int16_t kCodeComplexInvariant = -9;
inline constexpr int16_t kCodeComplexUnresolved = -8;

struct SiteChangeCodes {
  std::vector<int16_t> Code;   // per site, 1..sites (index 0 unused)
  int32_t Codons = 0;          // complete codons classified (without gaps)
  int32_t CodonsWithGaps = 0;  // complete codons left out for a gap or missing datum
  int32_t ComplexCodons = 0;
  bool StopFound = false;      // a stop codon was met
  // Complex positions still unresolved at the closing pass of a second selection.
  int32_t InternalFaults = 0;
};

// The codes of the complete codons of `from`..`to` under `codon_position` and `code`.
[[nodiscard]] SiteChangeCodes ClassifyCodonColumns(const CodonColumns& columns,
                                                   const std::vector<int16_t>& codon_position,
                                                   const GeneticCodeTable& code, int32_t from,
                                                   int32_t to, ClassificationRules& rules);

// One column, given its different codons in ascending order (at least two) and the flag of the
// nuclear codes; `stop_found` is raised when a pair with a stop codon is evaluated. Returns the
// codes of positions 1..3 before the closing pass: 0 for a position the classification left, -8
// for an unresolved complex position.
[[nodiscard]] std::array<int16_t, 3> ClassifyDistinctCodons(const std::vector<int>& codons,
                                                            const GeneticCodeTable& code,
                                                            ClassificationRules& rules,
                                                            bool& stop_found);

// The closing pass of one position: 0 becomes 9; -8 becomes -9 without variants, -2 with one or
// two, minus the number of variants otherwise.
[[nodiscard]] int16_t ClosingCode(int16_t code, int variants);

}  // namespace ovelt

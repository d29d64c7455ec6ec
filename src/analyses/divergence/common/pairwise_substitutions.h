#pragma once
// Synonymous and nonsynonymous differences between every pair of sequences, summed over the
// complete codons of a region (Nei and Gojobori 1986, nei_gojobori.h). Codons with a gap or
// missing datum, and codons without a varying position, are skipped; a pair with equal codons
// adds nothing.
//
// The kernel groups the sequences of a codon column by codon (a column holds few distinct
// codons), takes each pair of groups once with the memoised counts of its two codons, and adds
// them to the pairs across the two groups. `CountPairwiseSubstitutionsPlain` is its plain twin:
// every pair of sequences, every codon, its own pathway walk.

#include <vector>

#include "analyses/divergence/common/codon_columns.h"
#include "analyses/divergence/common/nei_gojobori.h"
#include "analyses/divergence/common/pair_table.h"
#include "command/progress.h"

namespace ovelt {

struct PairwiseSubstitutions {
  PairTable Synonymous;     // SynDif
  PairTable Nonsynonymous;  // NSynDif
};

[[nodiscard]] PairwiseSubstitutions CountPairwiseSubstitutions(
    const CodonColumns& columns, const std::vector<CodonSites>& codons,
    const NeiGojoboriTable& counts, const Progress& progress = {});

[[nodiscard]] PairwiseSubstitutions CountPairwiseSubstitutionsPlain(
    const CodonColumns& columns, const std::vector<CodonSites>& codons,
    const GeneticCodeTable& code);

// Differences at the noncoding positions of a region, for the silent sites: each site of codon
// position 0 without a gap or missing datum is a position; at each such varying site a pair of
// sequences with different nucleotides adds one difference.
struct NoncodingDifferences {
  int32_t Positions = 0;  // NonCodingPositions
  PairTable Differences;
};

[[nodiscard]] NoncodingDifferences CountNoncodingDifferences(
    const CodonColumns& columns, const std::vector<int16_t>& codon_position, int32_t from,
    int32_t to);

}  // namespace ovelt

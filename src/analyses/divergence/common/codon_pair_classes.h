#pragma once
// One pair of codons, classified for `SiteChangeCode`: of its pathways (codon_pathways.h) the one
// with the fewest nonsynonymous steps is taken, and each position gets a value: 0 where the
// codons agree, 1 for a nonsynonymous step, 2 for a synonymous one. A pathway through a stop
// intermediate stays in the list with 1 at each of its positions. The score of a pathway is the
// sum of its values; among pathways tied at the best score with different values, the rules of
// the run choose (classification_rules.h); equal tied patterns take the first.

#include <array>
#include <cstdint>

#include "analyses/divergence/common/classification_rules.h"
#include "core/genetic_code.h"

namespace ovelt {

using PositionValues = std::array<int8_t, 3>;

struct ClassifiedPair {
  PositionValues Value{};   // positions 1..3 at indices 0..2
  int Differences = 0;
  int SynonymousSteps = 0;  // synonymous steps over all the pathways kept
};

// `stop_found` is raised when either codon is a stop codon.
[[nodiscard]] ClassifiedPair ClassifyCodonPair(int a, int b, const GeneticCodeTable& code,
                                               ClassificationRules& rules, bool& stop_found);

}  // namespace ovelt

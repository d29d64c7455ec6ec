#pragma once
// Synonymous sites of each sequence over the complete codons of a region. A codon with a gap or
// missing datum in any sequence in use is left out. For the others, the class digits of
// positions 1 and 3 (codon_fold_table.h) are counted, and position 2 counts as class "0": a
// second position never contributes synonymous sites. With c0..c4 the counts of the digits,
//
//   SynSites = 2 c3 / 3 + c2 / 3 + c4 + c1 / 2,
//
// and the coding sites analyzed are c0 + ... + c4, three per codon; a sequence's nonsynonymous
// sites are these minus its synonymous sites.

#include <cstdint>
#include <vector>

#include "analyses/divergence/common/codon_columns.h"
#include "analyses/divergence/common/codon_fold_table.h"
#include "core/genetic_code.h"

namespace ovelt {

struct SynonymousSiteCount {
  std::vector<float> SynSites{0.0F};  // per sequence, 1..n
  int32_t CodingSitesAnalyzed = 0;
  int32_t Codons = 0;          // complete codons without gaps
  int32_t CodonsWithGaps = 0;  // complete codons left out
  bool StopFound = false;      // a sequence holds a stop codon in a codon analyzed
};

[[nodiscard]] SynonymousSiteCount CountSynonymousSites(const CodonColumns& columns,
                                                       const std::vector<CodonSites>& codons,
                                                       const GeneticCodeTable& code,
                                                       const CodonFoldTable& folds);

}  // namespace ovelt

#include "analyses/divergence/common/codon_pathways.h"

#include <algorithm>

#include "analyses/divergence/common/codon_index.h"

namespace ovelt {

bool CodonPathway::ThroughStop(const GeneticCodeTable& code) const {
  for (int k = 1; k < Steps; ++k)
    if (code.IsStop(Codons[static_cast<size_t>(k)])) return true;
  return false;
}

bool CodonPathway::SynonymousStep(int k, const GeneticCodeTable& code) const {
  return code.Translate(Codons[static_cast<size_t>(k - 1)]) ==
         code.Translate(Codons[static_cast<size_t>(k)]);
}

std::vector<CodonPathway> PathwaysBetween(int a, int b) {
  std::vector<int> positions;
  for (int p = 1; p <= 3; ++p)
    if (CodonBase(a, p) != CodonBase(b, p)) positions.push_back(p);
  std::vector<CodonPathway> pathways;
  if (positions.empty()) return pathways;
  // Ascending positions give the permutations in lexicographic order.
  do {
    CodonPathway pathway;
    pathway.Steps = static_cast<int>(positions.size());
    pathway.Codons[0] = a;
    for (int k = 1; k <= pathway.Steps; ++k) {
      const int position = positions[static_cast<size_t>(k - 1)];
      pathway.Order[static_cast<size_t>(k - 1)] = position;
      pathway.Codons[static_cast<size_t>(k)] =
          WithBase(pathway.Codons[static_cast<size_t>(k - 1)], position, CodonBase(b, position));
    }
    pathways.push_back(pathway);
  } while (std::next_permutation(positions.begin(), positions.end()));
  return pathways;
}

}  // namespace ovelt

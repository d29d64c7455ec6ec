#include "analyses/divergence/common/nei_gojobori.h"

#include "analyses/divergence/common/codon_pathways.h"

namespace ovelt {

NeiGojoboriCount NeiGojoboriPair(int a, int b, const GeneticCodeTable& code) {
  NeiGojoboriCount count;
  const std::vector<CodonPathway> pathways = PathwaysBetween(a, b);
  if (pathways.empty()) return count;
  count.Differences = pathways.front().Steps;
  int kept = 0;
  int synonymous = 0;
  for (const CodonPathway& pathway : pathways) {
    if (pathway.ThroughStop(code)) continue;
    ++kept;
    for (int k = 1; k <= pathway.Steps; ++k)
      if (pathway.SynonymousStep(k, code)) ++synonymous;
  }
  if (kept > 0) count.Synonymous = static_cast<double>(synonymous) / kept;
  return count;
}

NeiGojoboriTable::NeiGojoboriTable(const GeneticCodeTable& code) {
  for (int a = 1; a <= 64; ++a)
    for (int b = 1; b <= 64; ++b)
      counts_[static_cast<size_t>(a * 65 + b)] = NeiGojoboriPair(a, b, code);
}

}  // namespace ovelt

#include "analyses/divergence/common/codon_pair_classes.h"

#include <vector>

#include "analyses/divergence/common/codon_pathways.h"

namespace ovelt {

ClassifiedPair ClassifyCodonPair(int a, int b, const GeneticCodeTable& code,
                                 ClassificationRules& rules, bool& stop_found) {
  ClassifiedPair result;
  if (code.IsStop(a) || code.IsStop(b)) stop_found = true;
  const std::vector<CodonPathway> pathways = PathwaysBetween(a, b);
  if (pathways.empty()) return result;
  result.Differences = pathways.front().Steps;

  std::vector<PositionValues> patterns;
  std::vector<int> scores;
  for (const CodonPathway& pathway : pathways) {
    PositionValues values{};
    const bool through_stop = pathway.ThroughStop(code);
    for (int k = 1; k <= pathway.Steps; ++k) {
      const bool synonymous = !through_stop && pathway.SynonymousStep(k, code);
      if (synonymous) ++result.SynonymousSteps;
      values[static_cast<size_t>(pathway.Order[static_cast<size_t>(k - 1)] - 1)] =
          static_cast<int8_t>(synonymous ? 2 : 1);
    }
    patterns.push_back(values);
    scores.push_back(values[0] + values[1] + values[2]);
  }

  int best = scores.front();
  for (const int score : scores) best = score > best ? score : best;
  std::vector<PositionValues> tied;
  for (size_t i = 0; i < patterns.size(); ++i)
    if (scores[i] == best) tied.push_back(patterns[i]);
  bool all_equal = true;
  for (const PositionValues& pattern : tied) all_equal = all_equal && pattern == tied.front();

  size_t chosen = 0;
  if (!all_equal) {
    if (rules.PairedSpecies) {
      if (rules.TiedPathways) chosen = rules.TiedPathways(a, b, tied);
    } else if (rules.Ties != nullptr) {
      chosen = static_cast<size_t>(rules.Ties->Pick(static_cast<int>(tied.size())) - 1);
    }
    if (chosen >= tied.size()) chosen = 0;
  }
  result.Value = tied[chosen];
  return result;
}

}  // namespace ovelt

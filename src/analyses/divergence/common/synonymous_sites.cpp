#include "analyses/divergence/common/synonymous_sites.h"

#include <array>

namespace ovelt {

SynonymousSiteCount CountSynonymousSites(const CodonColumns& columns,
                                         const std::vector<CodonSites>& codons,
                                         const GeneticCodeTable& code,
                                         const CodonFoldTable& folds) {
  SynonymousSiteCount count;
  const auto n = static_cast<size_t>(columns.Seqs);
  // Digit counts c0..c4 of each sequence.
  std::vector<std::array<int32_t, 5>> digits(n + 1, std::array<int32_t, 5>{});
  for (const CodonSites& sites : codons) {
    if (columns.HasGap(sites)) {
      ++count.CodonsWithGaps;
      continue;
    }
    ++count.Codons;
    for (int32_t seq = 1; seq <= columns.Seqs; ++seq) {
      const int codon = columns.CodonOf(sites, seq);
      if (code.IsStop(codon)) count.StopFound = true;
      auto& c = digits[static_cast<size_t>(seq)];
      ++c[static_cast<size_t>(folds.At(codon, 1) - '0')];
      ++c[0];  // position 2
      ++c[static_cast<size_t>(folds.At(codon, 3) - '0')];
    }
  }
  count.SynSites.assign(n + 1, 0.0F);
  for (size_t seq = 1; seq <= n; ++seq) {
    const auto& c = digits[seq];
    count.SynSites[seq] = static_cast<float>(2.0 * c[3] / 3.0 + c[2] / 3.0 + c[4] + c[1] / 2.0);
  }
  count.CodingSitesAnalyzed = 3 * count.Codons;
  return count;
}

}  // namespace ovelt

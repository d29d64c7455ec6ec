#include "analyses/linkage/allele_pairs.h"

#include <cstddef>

namespace ovelt {

AllelePair AllelePairAt(const SeqMatrix& matrix, int32_t site, int32_t n) {
  const char first = matrix.at(site, 1);
  char other = first;
  int32_t count = 0;
  for (int32_t seq = 1; seq <= n; ++seq) {
    const char c = matrix.at(site, seq);
    if (c == first) {
      ++count;
    } else {
      other = c;
    }
  }
  if (static_cast<double>(n) / 2.0 <= count) return {first, other};
  return {other, first};
}

AnalysedSites FindAnalysedSites(const SeqMatrix& matrix, int32_t n,
                                const std::vector<int16_t>& site_class, int32_t from, int32_t to,
                                bool all_sites) {
  AnalysedSites out;
  for (int32_t site = from; site <= to; ++site) {
    const auto s = static_cast<std::size_t>(site);
    const int16_t c = s < site_class.size() ? site_class[s] : int16_t{5};
    if (c == 3 || c == 4) out.ThreeOrFourVariants = true;
    if (c == 2 || (c == 1 && all_sites)) {
      out.Sites.push_back(site);
      out.Alleles.push_back(AllelePairAt(matrix, site, n));
    }
  }
  return out;
}

}  // namespace ovelt

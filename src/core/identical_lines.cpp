#include "core/identical_lines.h"

#include <algorithm>
#include <vector>

namespace ovelt {

int32_t BuscaLineasIdenticas(const Selection& sel, int32_t first, int32_t last) {
  const int32_t seqs = std::min(sel.SelCount1, sel.SelMatrix1.seqs());
  if (seqs < 1) return 0;
  first = std::max(first, 1);
  last =
      std::min({last, sel.SelMatrix1.sites(), static_cast<int32_t>(sel.SelSiteClass1.size()) - 1});
  // Only the polymorphic sites can tell two sequences apart.
  std::vector<int32_t> compared;
  for (int32_t site = first; site <= last; ++site) {
    const int16_t site_class = sel.SelSiteClass1[static_cast<size_t>(site)];
    if (site_class != kMonomorphic && site_class != kGapOrMissing) compared.push_back(site);
  }
  auto agree = [&](int32_t i, int32_t j) {
    const char* a = sel.SelMatrix1.sequence(i);
    const char* b = sel.SelMatrix1.sequence(j);
    return std::all_of(compared.begin(), compared.end(),
                       [&](int32_t site) { return a[site - 1] == b[site - 1]; });
  };
  std::vector<bool> grouped(static_cast<size_t>(seqs) + 1, false);
  int32_t largest = 1;
  for (int32_t i = 1; i < seqs; ++i) {
    if (grouped[static_cast<size_t>(i)]) continue;
    int32_t size = 1;
    for (int32_t j = i + 1; j <= seqs; ++j) {
      if (grouped[static_cast<size_t>(j)] || !agree(i, j)) continue;
      grouped[static_cast<size_t>(j)] = true;
      ++size;
    }
    largest = std::max(largest, size);
  }
  return largest;
}

}  // namespace ovelt

#include "analyses/polymorphism/neutrality/neutrality_totals.h"

#include <algorithm>

namespace ovelt {

NeutralityTotals SumTallies(const SiteTallies& tallies, int32_t first, int32_t last,
                            bool use_mutations, int32_t n) {
  NeutralityTotals totals;
  totals.DerivedSpectrum.assign(static_cast<size_t>(std::max(n, 0)) + 1, 0);
  first = std::max(first, tallies.From);
  last = std::min(last, tallies.To);
  for (int32_t site = first; site <= last; ++site) {
    const auto s = static_cast<size_t>(site);
    if (tallies.Classes[s] != kGapOrMissing) ++totals.NetSites;
    const SiteTally& t = tallies.Sites[s];
    if (!t.Used) continue;
    totals.K += t.Diversity;
    if (t.Variants < 2) continue;
    ++totals.SegSites;
    totals.TotalMutations += t.Variants - 1;
    totals.EtaS += use_mutations ? t.Singletons : (t.Singletons > 0 ? 1 : 0);
    totals.EtaE += use_mutations ? t.External : (t.External > 0 ? 1 : 0);
    // Counting mutations, each derived nucleotide is a variant of its own frequency; counting
    // sites, the derived nucleotides are folded into one.
    if (use_mutations) {
      for (const int32_t carriers : t.Derived) {
        if (carriers > 0 && carriers <= n) ++totals.DerivedSpectrum[static_cast<size_t>(carriers)];
      }
    } else {
      const int32_t carriers = t.Derived[0] + t.Derived[1] + t.Derived[2];
      if (carriers > 0 && carriers <= n) ++totals.DerivedSpectrum[static_cast<size_t>(carriers)];
    }
  }
  totals.Eta = use_mutations ? totals.TotalMutations : totals.SegSites;
  return totals;
}

}  // namespace ovelt

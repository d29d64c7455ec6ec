#pragma once
// Sums of the site tallies over a stretch of sites: the counts that the neutrality statistics
// take. Counting mutations (`UseMutations`), a site of v nucleotides holds v - 1 mutations and
// each singleton (or external singleton) counts; counting segregating sites, each polymorphic
// site counts once, and once more in Eta(s) (Eta(e)) when it has any singleton (external one).

#include <cstdint>
#include <vector>

#include "analyses/polymorphism/neutrality/neutrality_sites.h"

namespace ovelt {

struct NeutralityTotals {
  int32_t NetSites = 0;        // L: sites of the stretch that are not gap sites
  int32_t SegSites = 0;        // S, over the used sites
  int32_t TotalMutations = 0;  // S plus the extra mutations of three- and four-variant sites
  int32_t Eta = 0;             // what the statistics take: TotalMutations, or S
  int32_t EtaS = 0;            // singletons
  int32_t EtaE = 0;            // singletons on external branches (with an outgroup)
  double K = 0.0;              // average number of nucleotide differences
  // S(i), i = 0..n: derived variants carried by i of the n sequences (with an outgroup).
  std::vector<int32_t> DerivedSpectrum;
};

// Over first..last (within the tallied region) for a sample of n sequences.
[[nodiscard]] NeutralityTotals SumTallies(const SiteTallies& tallies, int32_t first, int32_t last,
                                          bool use_mutations, int32_t n);

}  // namespace ovelt

#pragma once
// Counts over a region of the first selection: net sites (sites without gaps or missing data
// among the sequences in use), extra mutations at sites with three or four variants, and sites
// without any nucleotide ("fixed gaps").

#include <cstdint>

#include "core/active_data.h"

namespace ovelt {

// Net sites of `first`..`last` (both included) by `SelSiteClass1`. Also leaves in `ad` the
// number of segregating sites (`SegSites`) and the sum of the per-site diversities
// (`SumSiteDiversity`) over the net sites, for the caller to read straight after.
[[nodiscard]] int32_t NetSites(ActiveData& ad, int32_t first, int32_t last);

// Mutations above one per site: (sites of class 3) + 2 * (sites of class 4). The total number
// of mutations, Eta, is `SegSites` plus this.
[[nodiscard]] int32_t ExtraMutations(const ActiveData& ad, int32_t first, int32_t last);

// Sites of `RegionFrom`..`RegionTo` where every sequence of the first selection has "-" or "?".
[[nodiscard]] int32_t FixedGaps(const ActiveData& ad);

// Nucleotide diversity per site: the summed diversity over the net sites, 0 with no net site.
[[nodiscard]] double DiversityPerSite(double sum_site_diversity, int32_t net_sites);

}  // namespace ovelt

#pragma once
// Counts over a region of the first selection: net sites (sites without gaps or missing data
// among the sequences in use), extra mutations at sites with three or four variants, and sites
// without any nucleotide ("fixed gaps").

#include <cstdint>

#include "core/selection.h"

namespace ovelt {

// What the count of the net sites of a region finds.
struct NetSiteCount {
  int32_t Net = 0;                // sites without gaps or missing data among the sequences in use
  int32_t SegSites = 0;           // net sites with a positive diversity
  double SumSiteDiversity = 0.0;  // summed per-site diversity over the net sites
};

// Net sites of `first`..`last` (both included) by `SelSiteClass1`.
[[nodiscard]] NetSiteCount CountNetSites(const Selection& sel, int32_t first, int32_t last);
[[nodiscard]] inline int32_t NetSites(const Selection& sel, int32_t first, int32_t last) {
  return CountNetSites(sel, first, last).Net;
}

// Mutations above one per site: (sites of class 3) + 2 * (sites of class 4). The total number
// of mutations, Eta, is `SegSites` plus this.
[[nodiscard]] int32_t ExtraMutations(const Selection& sel, int32_t first, int32_t last);

// Sites of the selection's region where every sequence of the first selection has "-" or "?".
[[nodiscard]] int32_t FixedGaps(const Selection& sel);

// Nucleotide diversity per site: the summed diversity over the net sites, 0 with no net site.
[[nodiscard]] double DiversityPerSite(double sum_site_diversity, int32_t net_sites);

}  // namespace ovelt

#pragma once
// The summary of one polymorphism run that later analyses read: net sites L, segregating sites
// S, mutations Eta, the average number of nucleotide differences k and Pi = k / L (Nei 1987,
// Tajima 1983). k is the sum of the per-site gene diversities of the selection, never a loop
// over pairs. With no net site (L = 0) Pi is 0.

#include <cstdint>

#include "core/selection.h"

namespace ovelt {

struct PolyStats {
  int32_t NetSites = 0;   // L
  int32_t SegSites = 0;   // S
  float Mutations = 0;    // Eta
  double AvgDiffs = 0.0;  // k
  double PiValue = 0.0;   // Pi

  template <class V>
  void Visit(V& v) const {
    v.Integer("net_sites", NetSites);
    v.Integer("segregating_sites", SegSites);
    v.Integer("mutations", static_cast<int64_t>(Mutations));
    v.Number("k", AvgDiffs);
    v.Number("pi", PiValue);
  }
};

struct SegregatingCounts {
  int32_t NetSites = 0;       // L: sites of the region without gaps or missing data
  int32_t SegSites = 0;       // S: sites with positive gene diversity
  double SumDiversity = 0.0;  // k: the summed gene diversities
};

// Walks from..to of the first selection (`SelSiteClass1`, `SelSiteDiversity1`).
[[nodiscard]] SegregatingCounts SegregatingTotals(const Selection& sel, int32_t from, int32_t to);

// L, S, k, Pi and Eta = S + (class-3 sites) + 2 (class-4 sites) over from..to.
[[nodiscard]] PolyStats ComputePolyStats(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt

#pragma once
// The summary of one polymorphism run that later analyses read: net sites L, segregating sites
// S, mutations Eta, the average number of nucleotide differences k and Pi = k / L (Nei 1987,
// Tajima 1983). k is the sum of the per-site gene diversities of the selection, never a loop
// over pairs. With no net site (L = 0) Pi is 0 in the reports and null in the JSON.

#include <cstdint>
#include <optional>

#include "core/selection.h"

namespace ovelt {

// A value per site for the JSON: not determined (null) without a net site, where the reports
// print 0.
[[nodiscard]] inline std::optional<double> PerSite(double value, int32_t net_sites) {
  return net_sites > 0 ? std::optional<double>(value) : std::nullopt;
}

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
    v.Optional("pi", PerSite(PiValue, NetSites));
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

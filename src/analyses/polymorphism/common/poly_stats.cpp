#include "analyses/polymorphism/common/poly_stats.h"

#include "core/net_sites.h"

namespace ovelt {

SegregatingCounts SegregatingTotals(const Selection& sel, int32_t from, int32_t to) {
  SegregatingCounts totals;
  totals.NetSites = to - from + 1;
  for (int32_t site = from; site <= to; ++site) {
    const auto s = static_cast<size_t>(site);
    if (sel.SelSiteClass1[s] == kGapOrMissing) {
      --totals.NetSites;
      continue;
    }
    const double diversity = sel.SelSiteDiversity1[s];
    totals.SumDiversity += diversity;
    if (diversity > 0.0) ++totals.SegSites;
  }
  return totals;
}

PolyStats ComputePolyStats(const Selection& sel, int32_t from, int32_t to) {
  const SegregatingCounts totals = SegregatingTotals(sel, from, to);
  PolyStats stats;
  stats.NetSites = totals.NetSites;
  stats.SegSites = totals.SegSites;
  stats.AvgDiffs = totals.SumDiversity;
  stats.PiValue = totals.NetSites == 0 ? 0.0 : totals.SumDiversity / totals.NetSites;
  // Counted in 32 bits: a long alignment can hold more than 32767 extra mutations.
  stats.Mutations = static_cast<float>(stats.SegSites + ExtraMutations(sel, from, to));
  return stats;
}

}  // namespace ovelt

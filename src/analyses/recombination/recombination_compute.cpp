#include "analyses/recombination/recombination_compute.h"

#include <cstddef>
#include <exception>
#include <new>
#include <stdexcept>

#include "analyses/recombination/c_grid_search.h"
#include "analyses/recombination/four_gametes.h"
#include "analyses/recombination/hudson_g.h"
#include "analyses/recombination/interval_reductions.h"
#include "analyses/recombination/kij_variance.h"
#include "analyses/recombination/recombination_messages.h"
#include "command/command_failure.h"
#include "core/net_sites.h"

namespace ovelt {

namespace {

// d: the distance between the ends of the region, less the gaps and missing cells per
// sequence at the sites with them; never below 0.
float NetDistance(const Selection& sel, int32_t from, int32_t to) {
  double gaps = 0.0;
  for (int32_t s = from; s <= to; ++s)
    if (sel.SelSiteClass1[static_cast<std::size_t>(s)] == 5)
      gaps += sel.SelSiteDiversity1[static_cast<std::size_t>(s)];
  const double d = static_cast<double>(to - from) - gaps / static_cast<double>(sel.SelCount1);
  return d < 0.0 ? 0.0F : static_cast<float>(d);
}

HudsonEstimate Estimate(const Selection& sel, int32_t from, int32_t to,
                        const std::function<void(int)>& gauge) {
  const int32_t n = sel.SelCount1;
  const double nn = static_cast<double>(n);
  HudsonEstimate e;
  const NetSiteCount scan = CountNetSites(sel, from, to);
  e.KPrime = static_cast<float>((nn - 1.0) * scan.SumSiteDiversity / nn);
  e.Sk2 = KijVariance(sel, PolymorphicSites(sel, from, to), e.KPrime, gauge);
  for (int32_t s = from; s <= to; ++s) {
    const int16_t c = sel.SelSiteClass1[static_cast<std::size_t>(s)];
    if (c == 0 || c == 5) continue;
    const double h = (nn - 1.0) * sel.SelSiteDiversity1[static_cast<std::size_t>(s)] / nn;
    e.H1 += h;
    e.H2 += h * h;
  }
  e.Theta = e.H1 * nn / (nn - 1.0);
  if (e.Theta == 0.0)
    Fail(WithDataFile(kCantEstimateRecombination + "\n" + kNoPolymorphismsRecombination,
                      sel.data().FilePath));
  e.G = (static_cast<double>(e.Sk2) - e.H1 + e.H2) / (e.Theta * e.Theta);
  try {
    const CGridResult grid = SearchC(e.G, [n](double c) { return HudsonG(c, n); });
    e.C = grid.C;
    e.AboveLimit = grid.AboveLimit;
  } catch (const std::domain_error&) {
    Fail(WithDataFile(kHudsonGFault, sel.data().FilePath));
  }
  e.NetDistance = NetDistance(sel, from, to);
  if (!e.AboveLimit) {
    // A division by a distance of 0 is a fault of the estimate, as any other.
    if (e.NetDistance == 0.0F) throw std::domain_error("division by zero");
    e.RAdjacent = e.C / static_cast<double>(e.NetDistance);
  }
  return e;
}

}  // namespace

HudsonEstimate EstimateHudsonC(const Selection& sel, int32_t from, int32_t to,
                               const std::function<void(int)>& gauge) {
  try {
    return Estimate(sel, from, to, gauge);
  } catch (const CommandFailure&) {
    throw;
  } catch (const std::exception&) {
    Fail(WithDataFile(kRecombinationParameterFault, sel.data().FilePath));
  }
}

RmEstimate EstimateRm(const Selection& sel, int32_t from, int32_t to,
                      const std::function<void(int)>& gauge) {
  RmEstimate r;
  int64_t sites = 0;
  for (int32_t s = from; s <= to; ++s) {
    const int16_t c = sel.SelSiteClass1[static_cast<std::size_t>(s)];
    if (c == 1 || c == 2) ++sites;
  }
  try {
    FourGameteTable table = FourGametePairs(sel, from, to, gauge);
    r.Sites = static_cast<int32_t>(table.Sites.size());
    r.OtherVariants = std::move(table.OtherVariants);
    r.PairsCompared = table.PairsCompared;
    r.Intervals = DropOverlappingIntervals(DropContainingIntervals(table.Pairs));
    r.FourGametePairs = std::move(table.Pairs);
    r.Rm = static_cast<int32_t>(r.Intervals.size());
  } catch (const std::bad_alloc&) {
    // The run goes on to the report, which says that Rm was not computed.
    RmEstimate failed;
    failed.Status = RmMemoryStatus(sites);
    failed.Sites = static_cast<int32_t>(sites);
    failed.PairsCompared = sites * (sites - 1) / 2;
    if (failed.Status == 2 && gauge) gauge(100);
    return failed;
  } catch (const std::exception&) {
    Fail(WithDataFile(kRmFault, sel.data().FilePath));
  }
  return r;
}

RecombinationResult ComputeRecombination(const Selection& sel,
                                         const std::function<void(int)>& gauge) {
  const int32_t from = sel.Region.RegionFrom;
  const int32_t to = sel.Region.RegionTo;
  RecombinationResult result;
  result.RegionFrom = from;
  result.RegionTo = to;
  result.Sequences = sel.SelCount1;
  const NetSiteCount scan = CountNetSites(sel, from, to);
  result.NetSites = scan.Net;
  result.SegSites = scan.SegSites;
  result.K = scan.SumSiteDiversity;
  result.Hudson = EstimateHudsonC(sel, from, to, gauge);
  result.Rm = EstimateRm(sel, from, to, gauge);
  return result;
}

}  // namespace ovelt

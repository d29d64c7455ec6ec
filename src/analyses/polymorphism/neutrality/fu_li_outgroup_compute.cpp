#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"

#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_sites.h"

namespace ovelt {

FuLiOutgroupResult ComputeFuLiOutgroupTest(const Selection& sel, int32_t from, int32_t to,
                                           bool use_mutations,
                                           const std::optional<SlidingWindowSpec>& window,
                                           const PolyGauge& gauge,
                                           const std::function<void(const std::string&)>& status) {
  SiteTallies tallies;
  FuLiOutgroupResult r = GuardFault(kFuLiOutgroupFault, false, [&] {
    FuLiOutgroupResult result;
    result.RegionFrom = from;
    result.RegionTo = to;
    const int32_t n = sel.SelCount1;
    result.Sequences = n;
    result.OutgroupSequences = sel.SelCount2;
    result.UseMutations = use_mutations;
    tallies = TallySitesWithOutgroup(sel, from, to);
    result.AmbiguousSites = tallies.AmbiguousSites;
    result.Totals = SumTallies(tallies, from, to, use_mutations, n);
    const NeutralityTotals& t = result.Totals;
    if (t.NetSites > 0) result.Pi = t.K / t.NetSites;
    result.Coefficients = FuLiOutgroupCoefficients(n);
    const FuLiCoefficients& c = result.Coefficients;
    result.ThetaK = t.K;
    result.ThetaEtaE = t.EtaE;
    result.ThetaEta = t.Eta / c.a1;
    if (t.Eta > 0) {
      result.D = FuLiDValue(t.Eta, t.EtaE, c.a1, c.uD, c.vD);
      result.F = FuLiFValue(t.K, t.Eta, t.EtaE, c.uF, c.vF);
      result.DMark = SignificanceFuLi(*result.D, FuLiTable::kD, n);
      result.FMark = SignificanceFuLi(*result.F, FuLiTable::kF, n);
    }
    return result;
  });
  if (status) status("Computing Fay and Wu's statistic...");
  r.FayWu =
      GuardFault(kFayWuFault, false, [&] { return FayWuH(r.Totals.DerivedSpectrum, r.Sequences); });
  if (window && r.D) {
    r.Windows = GuardFault(kFuLiOutgroupWindowFault, true, [&] {
      return ComputeFuLiOutgroupWindows(tallies, *window, r.Sequences, use_mutations, gauge);
    });
  }
  return r;
}

}  // namespace ovelt

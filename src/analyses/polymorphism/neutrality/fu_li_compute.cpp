#include "analyses/polymorphism/neutrality/fu_li_compute.h"

#include <new>

#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_sites.h"

namespace ovelt {

FuLiTestResult ComputeFuLiTest(const Selection& sel, int32_t from, int32_t to, bool use_mutations,
                               const std::optional<SlidingWindowSpec>& window,
                               const PolyGauge& gauge) {
  SiteTallies tallies;
  FuLiTestResult r = GuardFault(kFuLiFault, true, [&] {
    FuLiTestResult result;
    result.RegionFrom = from;
    result.RegionTo = to;
    const int32_t n = sel.SelOutCount;
    result.Sequences = n;
    result.UseMutations = use_mutations;
    tallies = TallySites(sel, from, to);
    result.Totals = SumTallies(tallies, from, to, use_mutations, n);
    const NeutralityTotals& t = result.Totals;
    if (t.NetSites > 0) result.Pi = t.K / t.NetSites;
    result.Coefficients = FuLiStarCoefficients(n);
    const FuLiCoefficients& c = result.Coefficients;
    result.ThetaK = t.K;
    result.ThetaEtaS = (n - 1.0) * t.EtaS / n;
    result.ThetaEta = t.Eta / c.a1;
    if (t.Eta > 0) {
      result.DStar = FuLiDStarValue(t.Eta, t.EtaS, c.a1, c.uD, c.vD, n);
      result.FStar = FuLiFStarValue(t.K, t.Eta, t.EtaS, c.uF, c.vF, n);
      result.DStarMark = SignificanceFuLi(*result.DStar, FuLiTable::kDStar, n);
      result.FStarMark = SignificanceFuLi(*result.FStar, FuLiTable::kFStar, n);
    }
    if (t.K > 0.0) result.Haplotypes = ComputeHaplotypes(sel, from, to);
    return result;
  });
  if (r.Haplotypes) {
    try {
      r.Fs = FsStatistic(r.Sequences, r.Haplotypes->Haplotypes, r.Totals.K);
    } catch (const std::bad_alloc&) {
      r.FsFailure = FsFault::kOutOfMemory;
    } catch (const std::exception&) {
      r.FsFailure = FsFault::kOther;
    }
  }
  if (window && r.DStar) {
    r.Windows = GuardFault(kFuLiWindowFault, true, [&] {
      return ComputeFuLiWindows(tallies, *window, r.Sequences, use_mutations, gauge);
    });
  }
  return r;
}

}  // namespace ovelt

#include "analyses/polymorphism/neutrality/tajima_compute.h"

#include <cmath>

#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_sites.h"

namespace ovelt {

TajimaTestResult ComputeTajimaTest(const Selection& sel, int32_t from, int32_t to,
                                   bool use_mutations,
                                   const std::optional<SlidingWindowSpec>& window,
                                   const PolyGauge& gauge) {
  TajimaTestResult r = GuardFault(kTajimaFault, true, [&] {
    TajimaTestResult result;
    result.RegionFrom = from;
    result.RegionTo = to;
    result.Sequences = sel.SelOutCount;
    result.UseMutations = use_mutations;
    result.Stats = ComputePolyStats(sel, from, to);
    result.Segregating = use_mutations ? static_cast<int32_t>(std::floor(result.Stats.Mutations))
                                       : result.Stats.SegSites;
    result.Coefficients = TajimaCoefficientsFor(result.Sequences);
    const TajimaCoefficients& c = result.Coefficients;
    result.ThetaSequence = result.Segregating / c.a1;
    if (result.Stats.NetSites > 0) result.ThetaSite = result.ThetaSequence / result.Stats.NetSites;
    if (result.Segregating > 0) {
      result.D = TajimaD(result.Stats.AvgDiffs, result.Segregating, c.a1, c.e1, c.e2);
      result.Mark = SignificanceTajima(*result.D, result.Sequences);
    }
    return result;
  });
  if (window && r.D) {
    r.Windows = GuardFault(kTajimaWindowFault, true, [&] {
      return ComputeTajimaWindows(TallySites(sel, from, to), *window, r.Sequences, use_mutations,
                                  gauge);
    });
  }
  return r;
}

}  // namespace ovelt

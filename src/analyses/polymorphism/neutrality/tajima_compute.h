#pragma once
// Tajima's test (Tajima 1989) over one selection and region: S, Eta, k and Pi of the region,
// Watterson's theta, and D with the sample size that its significance is read for; along a
// sliding window on request. Counting mutations (`UseMutations`) S is taken as Int(Eta).
// With S of 0, D is not determined.

#include <cstdint>
#include <optional>
#include <string>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/neutrality/neutrality_windows.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "stats/tajima_d.h"

namespace ovelt {

struct TajimaTestResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t Sequences = 0;  // n
  bool UseMutations = false;
  PolyStats Stats;             // L, S, Eta, k, Pi of the region
  int32_t Segregating = 0;     // the S of the test: S, or Int(Eta)
  double ThetaSequence = 0.0;  // S / a1
  double ThetaSite = 0.0;      // S / a1 / L (0 with no net site)
  TajimaCoefficients Coefficients;
  std::optional<double> D;    // none when S is 0
  std::string Mark = "n.d.";  // the significance mark of D
  std::optional<TajimaWindows> Windows;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Bool("use_mutations", UseMutations);
    Stats.Visit(v);
    v.Number("theta_sequence", ThetaSequence);
    v.Optional("theta_site", PerSite(ThetaSite, Stats.NetSites));
    v.Optional("tajima_d", D);
    v.Text("significance", Mark);
    v.Object("sliding_window", Windows);
  }
};

// Over from..to of the first selection (at least two sequences); along `window` when given.
// Throws CommandFailure with the test's message on a fault.
[[nodiscard]] TajimaTestResult ComputeTajimaTest(const Selection& sel, int32_t from, int32_t to,
                                                 bool use_mutations,
                                                 const std::optional<SlidingWindowSpec>& window,
                                                 const PolyGauge& gauge = {});

}  // namespace ovelt

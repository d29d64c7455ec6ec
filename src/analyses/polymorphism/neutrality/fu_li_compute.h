#pragma once
// Fu and Li's tests without an outgroup (Fu and Li 1993) over one selection and region: S, Eta
// and the singletons Eta(s), k and Pi, the three estimates of theta, D* and F*; when k is above
// 0 also the haplotypes with Fu's Fs and Strobeck's S (Fu 1997, theta = k); along a sliding
// window on request. With no polymorphic site nothing but the counts is computed.

#include <cstdint>
#include <optional>

#include "analyses/polymorphism/common/haplotypes.h"
#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/neutrality/neutrality_totals.h"
#include "analyses/polymorphism/neutrality/neutrality_windows.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "stats/fs_statistic.h"
#include "stats/fu_li_statistics.h"

namespace ovelt {

// Why Fs is missing although k is above 0.
enum class FsFault { kNone, kOutOfMemory, kOther };

struct FuLiTestResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t Sequences = 0;  // n
  bool UseMutations = false;
  NeutralityTotals Totals;  // L, S, total mutations, Eta, EtaS, k
  double Pi = 0.0;          // k / L
  double ThetaK = 0.0;      // k
  double ThetaEtaS = 0.0;   // (n - 1) EtaS / n
  double ThetaEta = 0.0;    // Eta / a1
  FuLiCoefficients Coefficients;
  bool Determined = false;  // Eta above 0
  double DStar = 0.0;
  double FStar = 0.0;
  std::optional<HaplotypeStats> Haplotypes;  // when k is above 0
  std::optional<FsResult> Fs;
  FsFault FsFailure = FsFault::kNone;
  std::optional<FuLiWindows> Windows;
};

// Over from..to of the first selection (filled, at least two sequences); along `window` when
// given. Throws NeutralityFailure with the test's message on a fault; a fault of Fs only leaves
// `FsFailure` set.
[[nodiscard]] FuLiTestResult ComputeFuLiTest(const Selection& sel, int32_t from, int32_t to,
                                             bool use_mutations,
                                             const std::optional<SlidingWindowSpec>& window,
                                             const PolyGauge& gauge = {});

}  // namespace ovelt

#pragma once
// Fu and Li's tests without an outgroup (Fu and Li 1993) over one selection and region: S, Eta
// and the singletons Eta(s), k and Pi, the three estimates of theta, D* and F*; when k is above
// 0 also the haplotypes with Fu's Fs and Strobeck's S (Fu 1997, theta = k); along a sliding
// window on request. With no polymorphic site nothing but the counts is computed.

#include <cstdint>
#include <optional>
#include <string>

#include "analyses/polymorphism/common/haplotype_fields.h"
#include "analyses/polymorphism/common/haplotypes.h"
#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/neutrality/fs_fields.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
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
  std::optional<double> DStar;  // none when Eta is 0
  std::optional<double> FStar;
  std::string DStarMark = "n.d.";  // the significance marks, padded to the report's column
  std::string FStarMark = "n.d.";
  std::optional<HaplotypeStats> Haplotypes;  // when k is above 0
  std::optional<FsResult> Fs;
  FsFault FsFailure = FsFault::kNone;
  std::optional<FuLiWindows> Windows;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Bool("use_mutations", UseMutations);
    v.Integer("net_sites", Totals.NetSites);
    v.Integer("segregating_sites", Totals.SegSites);
    v.Integer("mutations", Totals.TotalMutations);
    v.Integer("eta", Totals.Eta);
    v.Integer("eta_s", Totals.EtaS);
    v.Number("k", Totals.K);
    v.Optional("pi", PerSite(Pi, Totals.NetSites));
    v.Number("theta_k", ThetaK);
    v.Number("theta_eta_s", ThetaEtaS);
    v.Number("theta_eta", ThetaEta);
    v.Optional("d_star", DStar);
    v.Text("d_star_significance", MarkText(DStarMark));
    v.Optional("f_star", FStar);
    v.Text("f_star_significance", MarkText(FStarMark));
    VisitHaplotypes(v, Haplotypes);
    VisitFs(v, Fs);
    v.Object("sliding_window", Windows);
  }
};

// Over from..to of the first selection (filled, at least two sequences); along `window` when
// given. Throws NeutralityFailure with the test's message on a fault; a fault of Fs only leaves
// `FsFailure` set.
[[nodiscard]] FuLiTestResult ComputeFuLiTest(const Selection& sel, int32_t from, int32_t to,
                                             bool use_mutations,
                                             const std::optional<SlidingWindowSpec>& window,
                                             const PolyGauge& gauge = {});

}  // namespace ovelt

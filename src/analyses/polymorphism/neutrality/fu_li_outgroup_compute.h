#pragma once
// Fu and Li's tests with an outgroup (Fu and Li 1993) and Fay and Wu's H (Fay and Wu 2000): the
// first selection is the intraspecific data, the second the outgroup whose nucleotide is taken as
// the ancestral state. Counts over the used sites (see neutrality_sites.h): S, Eta, the mutations
// on external branches Eta(e) and the singletons Eta(s), k and Pi, the estimates of theta, D, F
// and H; along a sliding window on request. With Eta of 0, D and F are not determined.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_totals.h"
#include "analyses/polymorphism/neutrality/neutrality_windows.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "stats/fay_wu_h.h"
#include "stats/fu_li_statistics.h"

namespace ovelt {

struct FuLiOutgroupResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t Sequences = 0;  // n, the intraspecific data
  int32_t OutgroupSequences = 0;
  bool UseMutations = false;
  NeutralityTotals Totals;  // L, S, total mutations, Eta, EtaE, EtaS, k, S(i)
  double Pi = 0.0;          // k / L
  std::vector<int32_t> AmbiguousSites;
  double ThetaK = 0.0;     // k
  double ThetaEtaE = 0.0;  // Eta(e)
  double ThetaEta = 0.0;   // Eta / a1
  FuLiCoefficients Coefficients;
  std::optional<double> D;  // none when Eta is 0
  std::optional<double> F;
  std::string DMark = "n.d.";  // the significance marks, padded to the report's column
  std::string FMark = "n.d.";
  FayWuResult FayWu;
  std::optional<FuLiOutgroupWindows> Windows;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Integer("outgroup_sequences", OutgroupSequences);
    v.Bool("use_mutations", UseMutations);
    v.Integer("net_sites", Totals.NetSites);
    v.Integer("segregating_sites", Totals.SegSites);
    v.Integers("ambiguous_sites", AmbiguousSites);
    v.Integer("mutations", Totals.TotalMutations);
    v.Integer("eta", Totals.Eta);
    v.Integer("eta_e", Totals.EtaE);
    v.Integer("eta_s", Totals.EtaS);
    v.Number("k", Totals.K);
    v.Optional("pi", PerSite(Pi, Totals.NetSites));
    v.Number("theta_k", ThetaK);
    v.Number("theta_eta_e", ThetaEtaE);
    v.Number("theta_eta", ThetaEta);
    v.Optional("fu_li_d", D);
    v.Text("fu_li_d_significance", MarkText(DMark));
    v.Optional("fu_li_f", F);
    v.Text("fu_li_f_significance", MarkText(FMark));
    v.Number("theta_h", FayWu.ThetaH);
    v.Number("theta_pi", FayWu.ThetaPi);
    v.Number("fay_wu_h", FayWu.H);
    v.Object("sliding_window", Windows);
  }
};

// Over from..to of the first selection (classes and diversities filled, three or more
// sequences) against the second (one or more). `status` (optional) is told the status words of
// the steps. Throws NeutralityFailure with the test's message on a fault.
[[nodiscard]] FuLiOutgroupResult ComputeFuLiOutgroupTest(
    const Selection& sel, int32_t from, int32_t to, bool use_mutations,
    const std::optional<SlidingWindowSpec>& window, const PolyGauge& gauge = {},
    const std::function<void(const std::string&)>& status = {});

}  // namespace ovelt

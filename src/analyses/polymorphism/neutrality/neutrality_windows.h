#pragma once
// The neutrality statistics along a sliding window: Tajima's D, Fu and Li's D* and F*, and with an
// outgroup Fu and Li's D and F with Fay and Wu's H, each from the counts of the window's sites
// with the sample size of the whole run. A window without segregating sites (mutations) has no
// test statistic (none, its mark "n.d."); its H is 0.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_sites.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "stats/fay_wu_h.h"

namespace ovelt {

struct TajimaWindow {
  WindowBounds Window;
  int32_t SegSites = 0;  // S, or Eta when counting mutations
  double K = 0.0;
  std::optional<double> D;    // none without segregating sites
  std::string Mark = "n.d.";  // the significance mark of D for the run's sample size

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Integer("segregating_sites", SegSites);
    v.Number("k", K);
    v.Optional("tajima_d", D);
    v.Text("significance", Mark);
  }
};

struct FuLiWindow {
  WindowBounds Window;
  int32_t Eta = 0;
  int32_t EtaS = 0;
  double K = 0.0;
  std::optional<double> DStar;  // none without mutations
  std::optional<double> FStar;
  std::string DStarMark = "n.d.";  // the marks for the run's sample size, padded to their column
  std::string FStarMark = "n.d.";

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Integer("eta", Eta);
    v.Integer("eta_s", EtaS);
    v.Number("k", K);
    v.Optional("d_star", DStar);
    v.Text("d_star_significance", MarkText(DStarMark));
    v.Optional("f_star", FStar);
    v.Text("f_star_significance", MarkText(FStarMark));
  }
};

struct FuLiOutgroupWindow {
  WindowBounds Window;
  int32_t Eta = 0;
  int32_t EtaE = 0;
  double K = 0.0;
  std::optional<double> D;  // none without mutations
  std::optional<double> F;
  std::string DMark = "n.d.";  // the marks for the run's sample size, padded to their column
  std::string FMark = "n.d.";
  FayWuResult FayWu;

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Integer("eta", Eta);
    v.Integer("eta_e", EtaE);
    v.Number("k", K);
    v.Optional("fu_li_d", D);
    v.Text("fu_li_d_significance", MarkText(DMark));
    v.Optional("fu_li_f", F);
    v.Text("fu_li_f_significance", MarkText(FMark));
    v.Number("fay_wu_h", FayWu.H);
  }
};

template <class Row>
struct WindowRows {
  SlidingWindowSpec Geometry;
  int32_t Capacity = 0;   // R, the most windows the region could hold
  int32_t Sequences = 0;  // n of the significance marks
  std::vector<Row> Rows;

  template <class V>
  void Visit(V& v) const {
    Geometry.Visit(v);
    v.Array("windows", Rows);
  }
};

using TajimaWindows = WindowRows<TajimaWindow>;
using FuLiWindows = WindowRows<FuLiWindow>;
using FuLiOutgroupWindows = WindowRows<FuLiOutgroupWindow>;

// Over the tallied region (from..to of `tallies`) for n sequences. The gauge rises with row / R.
[[nodiscard]] TajimaWindows ComputeTajimaWindows(const SiteTallies& tallies,
                                                 const SlidingWindowSpec& geometry, int32_t n,
                                                 bool use_mutations, const PolyGauge& gauge = {});
[[nodiscard]] FuLiWindows ComputeFuLiWindows(const SiteTallies& tallies,
                                             const SlidingWindowSpec& geometry, int32_t n,
                                             bool use_mutations, const PolyGauge& gauge = {});
[[nodiscard]] FuLiOutgroupWindows ComputeFuLiOutgroupWindows(const SiteTallies& tallies,
                                                             const SlidingWindowSpec& geometry,
                                                             int32_t n, bool use_mutations,
                                                             const PolyGauge& gauge = {});

}  // namespace ovelt

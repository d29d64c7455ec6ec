#include "analyses/polymorphism/neutrality/neutrality_windows.h"

#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_totals.h"
#include "stats/fu_li_statistics.h"
#include "stats/tajima_d.h"

namespace ovelt {
namespace {

// Walks the windows of the tallied region; `fill` computes each row from the window's totals.
template <class Row, class Fill>
WindowRows<Row> Slide(const SiteTallies& tallies, const SlidingWindowSpec& geometry, int32_t n,
                      bool use_mutations, const PolyGauge& gauge, Fill fill) {
  WindowRows<Row> result;
  result.Geometry = geometry;
  result.Sequences = n;
  result.Capacity = WindowCapacity(tallies.From, tallies.To, geometry.StepSize);
  const std::vector<WindowBounds> windows =
      SlideWindows(tallies.Classes, tallies.From, tallies.To, geometry);
  result.Rows.reserve(windows.size());
  for (const WindowBounds& w : windows) {
    Row row;
    row.Window = w;
    fill(row, SumTallies(tallies, w.Start, w.End, use_mutations, n));
    result.Rows.push_back(row);
    RaiseTo(gauge,
            static_cast<int>(static_cast<double>(result.Rows.size()) / result.Capacity * 100.0));
  }
  return result;
}

}  // namespace

TajimaWindows ComputeTajimaWindows(const SiteTallies& tallies, const SlidingWindowSpec& geometry,
                                   int32_t n, bool use_mutations, const PolyGauge& gauge) {
  const TajimaCoefficients c = TajimaCoefficientsFor(n);
  return Slide<TajimaWindow>(tallies, geometry, n, use_mutations, gauge,
                             [&](TajimaWindow& row, const NeutralityTotals& t) {
                               row.SegSites = t.Eta;
                               row.K = t.K;
                               if (t.Eta <= 0) return;
                               row.D = TajimaD(t.K, t.Eta, c.a1, c.e1, c.e2);
                               row.Mark = SignificanceTajima(*row.D, n);
                             });
}

FuLiWindows ComputeFuLiWindows(const SiteTallies& tallies, const SlidingWindowSpec& geometry,
                               int32_t n, bool use_mutations, const PolyGauge& gauge) {
  const FuLiCoefficients c = FuLiStarCoefficients(n);
  return Slide<FuLiWindow>(tallies, geometry, n, use_mutations, gauge,
                           [&](FuLiWindow& row, const NeutralityTotals& t) {
                             row.Eta = t.Eta;
                             row.EtaS = t.EtaS;
                             row.K = t.K;
                             if (t.Eta <= 0) return;
                             row.DStar = FuLiDStarValue(t.Eta, t.EtaS, c.a1, c.uD, c.vD, n);
                             row.FStar = FuLiFStarValue(t.K, t.Eta, t.EtaS, c.uF, c.vF, n);
                             row.DStarMark = SignificanceFuLi(*row.DStar, FuLiTable::kDStar, n);
                             row.FStarMark = SignificanceFuLi(*row.FStar, FuLiTable::kFStar, n);
                           });
}

FuLiOutgroupWindows ComputeFuLiOutgroupWindows(const SiteTallies& tallies,
                                               const SlidingWindowSpec& geometry, int32_t n,
                                               bool use_mutations, const PolyGauge& gauge) {
  const FuLiCoefficients c = FuLiOutgroupCoefficients(n);
  return Slide<FuLiOutgroupWindow>(tallies, geometry, n, use_mutations, gauge,
                                   [&](FuLiOutgroupWindow& row, const NeutralityTotals& t) {
                                     row.Eta = t.Eta;
                                     row.EtaE = t.EtaE;
                                     row.K = t.K;
                                     row.FayWu = FayWuH(t.DerivedSpectrum, n);
                                     if (t.Eta <= 0) return;
                                     row.D = FuLiDValue(t.Eta, t.EtaE, c.a1, c.uD, c.vD);
                                     row.F = FuLiFValue(t.K, t.Eta, t.EtaE, c.uF, c.vF);
                                     row.DMark = SignificanceFuLi(*row.D, FuLiTable::kD, n);
                                     row.FMark = SignificanceFuLi(*row.F, FuLiTable::kF, n);
                                   });
}

}  // namespace ovelt

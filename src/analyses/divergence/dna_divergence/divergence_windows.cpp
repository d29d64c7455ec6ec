#include "analyses/divergence/dna_divergence/divergence_windows.h"

#include "analyses/divergence/dna_divergence/divergence_sums.h"

namespace ovelt {

SiteClasses JointGapClasses(const Selection& sel) {
  SiteClasses classes = sel.SelSiteClass1;
  for (size_t s = 1; s < classes.size() && s < sel.SelSiteClass2.size(); ++s)
    if (sel.SelSiteClass2[s] == kGapOrMissing) classes[s] = kGapOrMissing;
  return classes;
}

DivergenceWindows ComputeDivergenceWindows(const Selection& sel,
                                           const std::vector<double>& site_dxy, int32_t from,
                                           int32_t to, const SlidingWindowSpec& geometry,
                                           const Progress& progress) {
  DivergenceWindows result;
  result.Geometry = geometry;
  result.Capacity = WindowCapacity(from, to, geometry.StepSize);
  const std::vector<WindowBounds> windows =
      SlideWindows(JointGapClasses(sel), from, to, geometry);
  result.Rows.reserve(windows.size());
  int32_t row = 0;
  for (const WindowBounds& w : windows) {
    const DivergenceSums sums = SumDivergence(sel, site_dxy, w.Start, w.End);
    result.Rows.push_back({w, sums.Pi1, sums.Pi2, sums.Dxy, sums.Da});
    ++row;
    progress.Raise(static_cast<int>(static_cast<double>(row) / result.Capacity * 100.0));
  }
  return result;
}

}  // namespace ovelt

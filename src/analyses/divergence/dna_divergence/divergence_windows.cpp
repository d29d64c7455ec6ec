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
  return RunWindows<DivergenceWindow>(
      JointGapClasses(sel), from, to, geometry,
      [&](const WindowBounds& w) {
        const DivergenceSums sums = SumDivergence(sel, site_dxy, w.Start, w.End);
        return DivergenceWindow{w, sums.Pi1, sums.Pi2, sums.Dxy, sums.Da};
      },
      [&progress](int percent) { progress.Raise(percent); });
}

}  // namespace ovelt

#pragma once
// Pi(1), Pi(2), Dxy and Da along a sliding window. A site with a gap in either population is
// a gap site of the window geometry, and each window's sums are those of the region sums over
// its own sites (a window without a net site gives 0).

#include <cstdint>
#include <vector>

#include "analyses/polymorphism/windows/sliding_window.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

struct DivergenceWindow {
  WindowBounds Window;
  double Pi1 = 0.0, Pi2 = 0.0, Dxy = 0.0, Da = 0.0;

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Number("pi1", Pi1);
    v.Number("pi2", Pi2);
    v.Number("dxy", Dxy);
    v.Number("da", Da);
  }
};

using DivergenceWindows = WindowRun<DivergenceWindow>;

// Class 5 where either population has class 5, the first population's class elsewhere: what
// the window geometry reads.
[[nodiscard]] SiteClasses JointGapClasses(const Selection& sel);

// Over from..to of the two classified selections of `sel`; `site_dxy` from `BuildSiteDxy`. The
// gauge rises with row / R.
[[nodiscard]] DivergenceWindows ComputeDivergenceWindows(const Selection& sel,
                                                         const std::vector<double>& site_dxy,
                                                         int32_t from, int32_t to,
                                                         const SlidingWindowSpec& geometry,
                                                         const Progress& progress = {});

}  // namespace ovelt

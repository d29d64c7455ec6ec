#pragma once
// Nucleotide diversity Pi, Watterson's theta and the segregating sites S along a sliding window
// (the window driver of the DNA polymorphism analysis). In each window k is the sum of the
// per-site gene diversities of its net sites and S the number of those above 0; Pi = k / net
// sites and Theta = S / (net sites a1) (Nei 1987, Watterson 1975). A window without net sites
// has no Pi nor Theta (none; its grid row and graph show 0).

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "output/graph_data.h"

namespace ovelt {

struct PiThetaWindow {
  WindowBounds Window;
  std::optional<double> Pi;
  std::optional<double> Theta;  // per site
  int32_t SegSites = 0;

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Optional("pi", Pi);
    v.Optional("theta_site", Theta);
    v.Integer("segregating_sites", SegSites);
  }
};

using PiThetaWindows = WindowRun<PiThetaWindow>;

// Over from..to of the first selection. The gauge rises with row / R.
[[nodiscard]] PiThetaWindows ComputePiThetaWindows(const Selection& sel, int32_t from, int32_t to,
                                                   const SlidingWindowSpec& geometry,
                                                   const PolyGauge& gauge = {});

// The grid: column titles, and one row of cell texts per window.
[[nodiscard]] std::vector<std::string> PiThetaGridTitles();
[[nodiscard]] std::vector<std::string> PiThetaGridRow(const PiThetaWindow& row);
// "start-end" right-aligned in 11 characters: the "Window" cell of every window driver.
[[nodiscard]] std::string WindowCell(const WindowBounds& window);

// The graph's table: rows 1..R, columns midpoint, Pi, Theta, S (1 to 4).
[[nodiscard]] GraphData PiThetaGraph(const PiThetaWindows& windows);

}  // namespace ovelt

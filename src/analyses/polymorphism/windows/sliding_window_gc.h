#pragma once
// Base composition along a sliding window (the G+C variant of the DNA polymorphism window):
// in each window the nucleotides of the selected sequences are counted over its sites, gaps
// and missing data left out; G+C and A+T are the shares of G plus C and of A plus T among the
// counted nucleotides, G and C their counts. A window without a nucleotide has no shares (none;
// its grid row and graph show 0).

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "output/graph_data.h"

namespace ovelt {

struct GcWindow {
  WindowBounds Window;
  std::optional<double> GC;
  std::optional<double> AT;
  int64_t G = 0;
  int64_t C = 0;

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Optional("gc_content", GC);
    v.Optional("at_content", AT);
    v.Integer("g_count", G);
    v.Integer("c_count", C);
  }
};

using GcWindows = WindowRun<GcWindow>;

// Over from..to of the first selection, with the geometry of the other window drivers.
[[nodiscard]] GcWindows ComputeGcWindows(const Selection& sel, int32_t from, int32_t to,
                                         const SlidingWindowSpec& geometry,
                                         const PolyGauge& gauge = {});

[[nodiscard]] std::vector<std::string> GcGridTitles();
[[nodiscard]] std::vector<std::string> GcGridRow(const GcWindow& row);
// The graph's table: rows 1..R, columns midpoint, G+C, A+T, G, C (1 to 5).
[[nodiscard]] GraphData GcGraph(const GcWindows& windows);

}  // namespace ovelt

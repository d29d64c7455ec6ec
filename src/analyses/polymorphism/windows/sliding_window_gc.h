#pragma once
// Base composition along a sliding window (the G+C variant of the DNA polymorphism window):
// in each window the nucleotides of the selected sequences are counted over its sites, gaps
// and missing data left out; G+C and A+T are the shares of G plus C and of A plus T among the
// counted nucleotides, G and C their counts. A window without a nucleotide has shares of 0.

#include <cstdint>
#include <string>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"
#include "output/graph_data.h"

namespace ovelt {

struct GcWindow {
  WindowBounds Window;
  double GC = 0.0;
  double AT = 0.0;
  int64_t G = 0;
  int64_t C = 0;
};

struct GcWindows {
  SlidingWindowSpec Geometry;
  int32_t Capacity = 0;
  std::vector<GcWindow> Rows;
};

// Over from..to of the first selection, with the geometry of the other window drivers.
[[nodiscard]] GcWindows ComputeGcWindows(const Selection& sel, int32_t from, int32_t to,
                                         const SlidingWindowSpec& geometry,
                                         const PolyGauge& gauge = {});

[[nodiscard]] std::vector<std::string> GcGridTitles();
[[nodiscard]] std::vector<std::string> GcGridRow(const GcWindow& row);
// The graph's table: rows 1..R, columns midpoint, G+C, A+T, G, C (1 to 5).
[[nodiscard]] GraphData GcGraph(const GcWindows& windows);

}  // namespace ovelt

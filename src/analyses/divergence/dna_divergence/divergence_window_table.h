#pragma once
// The grid and chart of DNA divergence along a sliding window: "Window", "Midpoint", "Pi(1)",
// "Pi(2)", "Dxy", "Da".

#include <string>
#include <vector>

#include "analyses/divergence/dna_divergence/divergence_windows.h"
#include "output/graph_data.h"

namespace ovelt {

[[nodiscard]] std::vector<std::string> DivergenceGridTitles();
[[nodiscard]] std::vector<std::string> DivergenceGridRow(const DivergenceWindow& row);

// The chart's table: rows 1..R, columns midpoint, Pi(1), Pi(2), Dxy, Da (1 to 5).
[[nodiscard]] GraphData DivergenceGraph(const DivergenceWindows& windows);

}  // namespace ovelt

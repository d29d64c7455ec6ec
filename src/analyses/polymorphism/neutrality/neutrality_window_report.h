#pragma once
// The tables of the neutrality tests along a sliding window: the grid (one row of cell texts per
// window), the graph's table and the legend of the significance marks printed under the table.
// Statistics print with "0.0000", a positive value with a blank in front so that it lines up
// with the negative ones; a window with no statistic prints "n.d." in its cells.

#include <string>
#include <vector>

#include "analyses/polymorphism/neutrality/neutrality_windows.h"
#include "output/graph_data.h"

namespace ovelt {

// " 0.1234" or "-0.1234".
[[nodiscard]] std::string SignedCell(double value);

[[nodiscard]] std::vector<std::string> TajimaGridTitles();
[[nodiscard]] std::vector<std::string> TajimaGridRow(const TajimaWindow& row);
[[nodiscard]] GraphData TajimaGraph(const TajimaWindows& windows);
// " n.d., not determined;  # P<0.10;  * P<0.05;  ** P<0.01;  *** P<0.001"
[[nodiscard]] std::string TajimaWindowLegend();

[[nodiscard]] std::vector<std::string> FuLiGridTitles();
[[nodiscard]] std::vector<std::string> FuLiGridRow(const FuLiWindow& row);
[[nodiscard]] GraphData FuLiGraph(const FuLiWindows& windows);

[[nodiscard]] std::vector<std::string> FuLiOutgroupGridTitles();
[[nodiscard]] std::vector<std::string> FuLiOutgroupGridRow(const FuLiOutgroupWindow& row);
[[nodiscard]] GraphData FuLiOutgroupGraph(const FuLiOutgroupWindows& windows);

// The legend of Fu and Li's marks: with "n.d., not determined" when some window of the table
// has no mark, else without it.
[[nodiscard]] std::string FuLiWindowLegend(bool any_not_determined);

}  // namespace ovelt

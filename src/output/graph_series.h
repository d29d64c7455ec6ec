#pragma once
// What the chooser of the graph window offers for a chart: the names of the series and the
// table columns each one draws, and the titles of the axes. A kind outside 1..16 offers nothing.

#include <cstdint>
#include <string>
#include <vector>

#include "output/graph_data.h"

namespace ovelt {

struct GraphSeries {
  std::string Name;
  std::vector<int32_t> Columns;  // table columns drawn together, on one scale
};

[[nodiscard]] bool IsGraphKind(int16_t kind);
// The neutrality charts (Tajima, Fu and Li, Fu and Li with an outgroup).
[[nodiscard]] bool IsNeutralityGraph(int16_t kind);

[[nodiscard]] std::vector<GraphSeries> SeriesOffered(const GraphData& graph);

// "Nucleotide Position"; "Nucleotide distance" for the LD chart; for the mismatch charts by
// subkind: "Pairwise Differences" (11, 12), "Allelic Frequency" (21), "Time in generations" (22).
[[nodiscard]] std::string XAxisTitle(const GraphData& graph);

// Legend words of the two columns of a mismatch chart: "Obs" and "Exp" unless the analysis named
// its curves.
[[nodiscard]] std::vector<std::string> MismatchLegend(const GraphData& graph);

}  // namespace ovelt

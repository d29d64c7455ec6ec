#pragma once
// The report of "Population Size Changes": the text lines behind the report head, the grid of
// observed and expected values (or of Sn(t)) and what the graph draws.

#include <cstdint>
#include <string>
#include <vector>

#include "analyses/polymorphism/size_changes/size_change_result.h"
#include "output/graph_data.h"

namespace ovelt {

// The graph of kind 15: X values and two series, observed and expected (for Sn(t) the curves
// of two sequences and of the whole sample).
struct SizeChangeGraph {
  int16_t GraphKind = 15;
  int16_t GraphSubKind = 11;  // the analysis kind: 11, 12, 21 or 22
  std::string XTitle;
  std::vector<std::string> SeriesNames;
  std::vector<float> X;
  std::vector<std::vector<float>> Series;
  int32_t GraphRows = 0;
};

// CR LF lines from " Number of polymorphic (segregating) sites, S: " on.
[[nodiscard]] std::string SizeChangeReportText(const SizeChangeResult& r);

[[nodiscard]] std::vector<std::string> SizeChangeColumnTitles(const SizeChangeResult& r);
// The head of the grid in saved and session files.
[[nodiscard]] std::string SizeChangeGridTextHead(const SizeChangeResult& r);
[[nodiscard]] std::vector<std::vector<std::string>> SizeChangeGridRows(const SizeChangeResult& r);

[[nodiscard]] SizeChangeGraph SizeChangeGraphData(const SizeChangeResult& r);
// The same chart as the graph window's table: X in column 1, the two series in columns 2 and 3,
// rows from 1.
[[nodiscard]] GraphData SizeChangeChart(const SizeChangeGraph& g);

// "Output too big to be displayed on the screen !", "There are ", rows, "rows !".
[[nodiscard]] std::string SizeChangeTooBigMessage(int64_t rows);

}  // namespace ovelt

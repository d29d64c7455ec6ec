#include "analyses/divergence/dna_divergence/divergence_window_table.h"

#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

// A value in "0.00000" right-aligned in the field " 0.00000", so that a negative Da lines up.
std::string ValueCell(double value) {
  return Format(Format(value, "0.00000"), "@@@@@@@@");
}

}  // namespace

std::vector<std::string> DivergenceGridTitles() {
  return {"Window", "Midpoint", "Pi(1)", "Pi(2)", "Dxy", "Da"};
}

std::vector<std::string> DivergenceGridRow(const DivergenceWindow& row) {
  return {WindowCell(row.Window), Format(row.Window.Midpoint, "@@@@@"),
          ValueCell(row.Pi1),     ValueCell(row.Pi2),
          ValueCell(row.Dxy),     ValueCell(row.Da)};
}

GraphData DivergenceGraph(const DivergenceWindows& windows) {
  GraphData graph;
  graph.GraphKind = kGraphDivergence;
  graph.Table = WindowTable(windows.Capacity, 6);
  int32_t row = 0;
  for (const DivergenceWindow& w : windows.Rows) {
    ++row;
    graph.Table.at(row, 1) = static_cast<float>(w.Window.Midpoint);
    graph.Table.at(row, 2) = static_cast<float>(w.Pi1);
    graph.Table.at(row, 3) = static_cast<float>(w.Pi2);
    graph.Table.at(row, 4) = static_cast<float>(w.Dxy);
    graph.Table.at(row, 5) = static_cast<float>(w.Da);
  }
  graph.Table.RowsUsed = row;
  graph.GraphRows = row;
  return graph;
}

}  // namespace ovelt

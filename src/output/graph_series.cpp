#include "output/graph_series.h"

namespace ovelt {

namespace {

constexpr int32_t kFirstStatisticColumn = 2;

// One series per column from column 2 on, as far as the table holds them.
std::vector<GraphSeries> OnePerColumn(const std::vector<std::string>& names, int32_t columns) {
  std::vector<GraphSeries> offered;
  for (size_t i = 0; i < names.size(); ++i) {
    const int32_t column = kFirstStatisticColumn + static_cast<int32_t>(i);
    if (column >= columns) break;
    offered.push_back({names[i], {column}});
  }
  return offered;
}

// The combined series, kept only when the table holds every column they draw.
void AddCombined(std::vector<GraphSeries>& offered, const std::vector<GraphSeries>& combined,
                 int32_t columns) {
  for (const GraphSeries& s : combined) {
    bool held = true;
    for (int32_t c : s.Columns) held = held && c < columns;
    if (held) offered.push_back(s);
  }
}

}  // namespace

bool IsGraphKind(int16_t kind) { return kind >= kFirstGraphKind && kind <= kLastGraphKind; }

bool IsNeutralityGraph(int16_t kind) {
  return kind == kGraphTajima || kind == kGraphFuLi || kind == kGraphFuLiOutgroup;
}

std::vector<GraphSeries> SeriesOffered(const GraphData& graph) {
  const int16_t kind = graph.GraphKind;
  const int32_t columns = graph.Table.Columns();
  if (!IsGraphKind(kind)) return {};
  if (!graph.SeriesNames.empty() && kind != kGraphMismatch)
    return OnePerColumn(graph.SeriesNames, columns);
  switch (kind) {
    case kGraphDivergence: {
      std::vector<GraphSeries> offered = OnePerColumn({"Pi[1]", "Pi[2]", "Dxy", "Da"}, columns);
      AddCombined(offered,
                  {{"Pi[1] & Pi[2]", {2, 3}},
                   {"Dxy & Da", {4, 5}},
                   {"Pi[1] & Pi[2] & Dxy", {2, 3, 4}},
                   {"Pi[1] & Pi[2] & Da", {2, 3, 5}}},
                  columns);
      return offered;
    }
    case kGraphLinkage:
      return OnePerColumn({"D", "|D|", "D'", "|D'|", "R", "R^2"}, columns);
    case kGraphTajima:
      return OnePerColumn({"D"}, columns);
    case kGraphFuLi:
      return OnePerColumn({"D*", "F*"}, columns);
    case kGraphMismatch: {
      // One chart of observed and expected values; its name says what the X axis counts.
      const bool pairwise = graph.GraphSubKind == 11 || graph.GraphSubKind == 12;
      if (columns <= 3) return {};
      return {{pairwise ? "Pairwise Differences" : "Segregating Sites", {2, 3}}};
    }
    case kGraphCodingRatios: {
      std::vector<GraphSeries> offered = OnePerColumn({"K(a)/K(s)", "Pi(a)/Pi(s)"}, columns);
      AddCombined(offered, {{"Pi & K", {3, 2}}}, columns);
      return offered;
    }
    case kGraphPolymorphism:
      return OnePerColumn({"Pi", "Theta", "S"}, columns);
    case kGraphConversion:
      return OnePerColumn({"Psi"}, columns);
    case kGraphFuLiOutgroup:
      return OnePerColumn({"FL-D", "FL-F", "FW-H"}, columns);
    default:
      return OnePerColumn({"Pi", "Theta", "S", "Psi", "FL-D", "FL-F", "FW-H"}, columns);
  }
}

std::string XAxisTitle(const GraphData& graph) {
  if (graph.GraphKind == kGraphLinkage) return "Nucleotide distance";
  if (graph.GraphKind == kGraphMismatch) {
    switch (graph.GraphSubKind) {
      case 21:
        return "Allelic Frequency";
      case 22:
        return "Time in generations";
      default:
        return "Pairwise Differences";
    }
  }
  return "Nucleotide Position";
}

std::vector<std::string> MismatchLegend(const GraphData& graph) {
  if (graph.SeriesNames.size() >= 2) return {graph.SeriesNames[0], graph.SeriesNames[1]};
  return {"Obs", "Exp"};
}

}  // namespace ovelt

// The LD chart: pairs of sites against their nucleotide distance, with least-squares lines.

#include <algorithm>
#include <exception>
#include <vector>

#include "output/format_mask.h"
#include "output/graph_frame.h"
#include "output/graph_layout.h"
#include "output/graph_series.h"
#include "stats/regression.h"

namespace ovelt {

namespace {

// The equations stand in the row above the frame, between the Y title and the right edge.
constexpr int kEquationLeft = kFrameLeft + 1300;
constexpr int kEquationRow = kFrameTop - 170;
constexpr int kEquationWidth = 2500;

struct Line {
  double Intercept = 0.0;
  double Slope = 0.0;
};

// The regression of y on x; none with fewer than three points or when it cannot be computed.
bool FitLine(const std::vector<double>& x, const std::vector<double>& y, Line& line) {
  if (x.size() < 3) return false;
  try {
    double t = 0.0;
    line.Intercept = Regression(x, y, line.Slope, t);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::string Equation(const Line& line) {
  const std::string sign = line.Slope < 0.0 ? " - " : " + ";
  return "Y = " + Format(line.Intercept, "0.####") + sign +
         Format(line.Slope < 0.0 ? -line.Slope : line.Slope, "0.####") + " X";
}

void DrawRegression(GraphPicture& picture, const FrameMap& map, const XAxis& axis,
                    const Line& line, const GraphPen& pen, int row) {
  picture.Lines.push_back({map.At(axis.First, line.Intercept + line.Slope * axis.First),
                           map.At(axis.Last, line.Intercept + line.Slope * axis.Last), pen,
                           false, true});
  picture.Texts.push_back({{kEquationLeft + row * kEquationWidth, kEquationRow}, Equation(line),
                           TextAnchor::kLeft, pen});
}

}  // namespace

GraphPicture LayoutLinkageGraph(const GraphData& graph, int column, const std::string& name,
                                bool show_significant) {
  const int32_t rows = std::min(graph.GraphRows, graph.Table.Capacity());
  if (rows <= 0 || column >= graph.Table.Columns()) return {};
  const bool flagged = graph.Table.Columns() > kLinkageSignificantColumn;
  std::vector<double> x, y, sx, sy;
  for (int32_t r = 1; r <= rows; ++r) {
    x.push_back(graph.Table.at(r, 1));
    y.push_back(graph.Table.at(r, column));
    if (flagged && graph.Table.at(r, kLinkageSignificantColumn) != 0.0f) {
      sx.push_back(x.back());
      sy.push_back(y.back());
    }
  }
  Line all, significant;
  const bool has_line = FitLine(x, y, all);
  double low = 0.0, high = 0.0;
  for (double v : y) {
    low = std::min(low, v);
    high = std::max(high, v);
  }
  const YAxis y_axis = MakeYAxis(low, high, "0.####");
  const XAxis x_axis =
      MakeIntegerXAxis(*std::min_element(x.begin(), x.end()), *std::max_element(x.begin(), x.end()));
  const FrameMap map(x_axis, y_axis);

  GraphPicture picture;
  picture.HasChart = true;
  DrawFrame(picture, map, x_axis, y_axis, XAxisTitle(graph), name);
  const GraphPen points{GraphRole::kSeries, 0};
  for (size_t i = 0; i < x.size(); ++i) picture.Marks.push_back({map.At(x[i], y[i]), points});
  if (has_line) DrawRegression(picture, map, x_axis, all, {GraphRole::kSeries, 1}, 0);
  if (show_significant) {
    if (sx.empty()) picture.Message = kNoSignificantValues;
    const GraphPen marked{GraphRole::kSignificant, 0};
    for (size_t i = 0; i < sx.size(); ++i)
      picture.Marks.push_back({map.At(sx[i], sy[i]), marked, MarkShape::kSquare});
    if (FitLine(sx, sy, significant)) DrawRegression(picture, map, x_axis, significant, marked, 1);
  }
  return picture;
}

}  // namespace ovelt

#include "output/graph_layout.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "output/graph_frame.h"
#include "output/graph_series.h"

namespace ovelt {

namespace {

// Points are marked on sparse charts; dense ones are lines only.
constexpr int32_t kMarkedRowsAtMost = 80;

int32_t RowsHeld(const GraphData& graph) {
  return std::clamp(graph.GraphRows, 0, graph.Table.Capacity());
}

struct Extent {
  double Low = std::numeric_limits<double>::max();
  double High = std::numeric_limits<double>::lowest();
  void Take(double v) {
    Low = std::min(Low, v);
    High = std::max(High, v);
  }
};

// Legend of a series of several columns: the name the chooser gives each column alone.
std::vector<std::string> PartNames(const GraphSeries& series,
                                   const std::vector<GraphSeries>& offered) {
  std::vector<std::string> names;
  for (int32_t column : series.Columns) {
    std::string name = series.Name;
    for (const GraphSeries& alone : offered)
      if (alone.Columns.size() == 1 && alone.Columns.front() == column) name = alone.Name;
    names.push_back(name);
  }
  return names;
}

}  // namespace

GraphPicture LayoutGraph(const GraphData& graph, const GraphRequest& request) {
  const std::vector<GraphSeries> offered = SeriesOffered(graph);
  const int32_t rows = RowsHeld(graph);
  if (offered.empty() || rows == 0 || request.Series < 0 ||
      request.Series >= static_cast<int>(offered.size()))
    return {};
  const GraphSeries& series = offered[static_cast<size_t>(request.Series)];
  if (graph.GraphKind == kGraphLinkage)
    return LayoutLinkageGraph(graph, series.Columns.front(), series.Name,
                              request.ShowSignificant);

  const bool neutrality = IsNeutralityGraph(graph.GraphKind);
  Extent x, y;
  for (int32_t r = 1; r <= rows; ++r) {
    x.Take(graph.Table.at(r, 1));
    for (int32_t c : series.Columns) y.Take(graph.Table.at(r, c));
  }
  std::vector<GraphBound> bounds;
  if (neutrality) {
    for (const GraphBound& b : graph.Bounds) {
      if (std::find(series.Columns.begin(), series.Columns.end(), b.Column) ==
          series.Columns.end())
        continue;
      bounds.push_back(b);
      y.Take(b.Lower);
      y.Take(b.Upper);
    }
  } else {
    // Rates and counts are read from 0.
    y.Take(0.0);
  }
  const YAxis y_axis = neutrality ? NeutralityAxis(y.Low, y.High) : MakeYAxis(y.Low, y.High, "0.#####");
  const bool continuous_x = graph.GraphKind == kGraphMismatch && graph.GraphSubKind == 22;
  const XAxis x_axis =
      continuous_x ? MakeContinuousXAxis(x.Low, x.High) : MakeIntegerXAxis(x.Low, x.High);
  const FrameMap map(x_axis, y_axis);

  GraphPicture picture;
  picture.HasChart = true;
  DrawFrame(picture, map, x_axis, y_axis, XAxisTitle(graph), series.Name);
  if (neutrality && y_axis.Bottom < 0.0 && y_axis.Top > 0.0)
    picture.Lines.push_back({map.At(x_axis.First, 0.0), map.At(x_axis.Last, 0.0),
                             {GraphRole::kAxes, 0}, true});
  for (const GraphBound& b : bounds) {
    for (float level : {b.Lower, b.Upper})
      picture.Lines.push_back({map.At(x_axis.First, level), map.At(x_axis.Last, level),
                               {GraphRole::kSignificant, 0}, true});
  }

  const bool mismatch = graph.GraphKind == kGraphMismatch;
  for (size_t s = 0; s < series.Columns.size(); ++s) {
    const GraphPen pen{GraphRole::kSeries, static_cast<int>(s)};
    GraphPolyline line{{}, pen};
    for (int32_t r = 1; r <= rows; ++r) {
      const GraphPoint p = map.At(graph.Table.at(r, 1), graph.Table.at(r, series.Columns[s]));
      line.Points.push_back(p);
      // The observed mismatch is drawn as points, the expected one as a curve.
      const bool marked = mismatch ? s == 0 : rows <= kMarkedRowsAtMost;
      if (marked) picture.Marks.push_back({p, pen, mismatch ? MarkShape::kSquare : MarkShape::kDot});
    }
    picture.Polylines.push_back(std::move(line));
  }
  if (mismatch) {
    DrawLegend(picture, MismatchLegend(graph));
  } else if (series.Columns.size() > 1) {
    DrawLegend(picture, PartNames(series, offered));
  }
  return picture;
}

}  // namespace ovelt

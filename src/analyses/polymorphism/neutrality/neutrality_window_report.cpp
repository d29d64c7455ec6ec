#include "analyses/polymorphism/neutrality/neutrality_window_report.h"

#include "analyses/polymorphism/neutrality/critical_row.h"
#include "analyses/polymorphism/neutrality/critical_tables.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "output/format_mask.h"
#include "stats/significance_words.h"

namespace ovelt {
namespace {

constexpr const char* kNotDetermined = "n.d.";
constexpr int32_t kGraphColumns = 5;  // 0..4: midpoint in 1, the statistics after it

std::vector<std::string> Leading(const WindowBounds& w) {
  return {WindowCell(w), Format(w.Midpoint, "@@@@@")};
}

template <class Row, class Columns>
GraphData Graph(const WindowRows<Row>& windows, int16_t kind, Columns columns) {
  GraphData graph;
  graph.GraphKind = kind;
  graph.Table = WindowTable(windows.Capacity, kGraphColumns);
  int32_t row = 0;
  for (const Row& w : windows.Rows) {
    ++row;
    graph.Table.at(row, 1) = static_cast<float>(w.Window.Midpoint);
    // A window with no statistic stands at 0 in the chart.
    const std::vector<double> values = columns(w);
    for (size_t i = 0; i < values.size(); ++i)
      graph.Table.at(row, static_cast<int32_t>(i) + 2) = static_cast<float>(values[i]);
  }
  graph.Table.RowsUsed = row;
  graph.GraphRows = row;
  return graph;
}

// The 5 % bounds the chart draws beside a statistic; none when the table has no row for n.
constexpr int kFivePercent = 1;

void AddTajimaBound(GraphData& graph, int32_t column, int32_t n) {
  if (const auto row = TajimaCriticalRowFor(n)) {
    const TajimaCriticalRow& r = TajimaCriticalRows()[static_cast<size_t>(*row)];
    graph.Bounds.push_back({column, r.lower[kFivePercent], r.upper[kFivePercent]});
  }
}

void AddFuLiBound(GraphData& graph, int32_t column, FuLiTable table, int32_t n) {
  if (const auto row = FuLiCriticalRowFor(n, FuLiFirstRow(table))) {
    const FuLiCriticalRow& r = FuLiCriticalRows(table)[static_cast<size_t>(*row)];
    graph.Bounds.push_back({column, r.lower[kFivePercent], r.upper[kFivePercent]});
  }
}

}  // namespace

std::string SignedCell(double value) {
  const std::string text = Format(value, "0.0000");
  return text.front() == '-' || text == kNotDetermined ? text : " " + text;
}

std::vector<std::string> TajimaGridTitles() {
  return {"Window", "Midpoint", "D", "Sign"};
}

std::vector<std::string> TajimaGridRow(const TajimaWindow& row) {
  std::vector<std::string> cells = Leading(row.Window);
  if (!row.D) {
    cells.insert(cells.end(), {kNotDetermined, kNotDetermined});
    return cells;
  }
  cells.insert(cells.end(), {SignedCell(*row.D), row.Mark});
  return cells;
}

GraphData TajimaGraph(const TajimaWindows& windows) {
  GraphData graph = Graph(windows, kGraphTajima, [](const TajimaWindow& w) {
    return std::vector<double>{w.D.value_or(0.0)};
  });
  AddTajimaBound(graph, 2, windows.Sequences);
  return graph;
}

std::string TajimaWindowLegend() {
  return SignificanceLegend(MarkFamily::kTajima);
}

std::vector<std::string> FuLiGridTitles() {
  return {"Window", "Midpoint", "D*", "Sign", "F*", "Sign"};
}

std::vector<std::string> FuLiGridRow(const FuLiWindow& row) {
  std::vector<std::string> cells = Leading(row.Window);
  if (!row.DStar || !row.FStar) {
    cells.insert(cells.end(), {kNotDetermined, kNotDetermined, kNotDetermined, kNotDetermined});
    return cells;
  }
  cells.insert(cells.end(),
               {SignedCell(*row.DStar), row.DStarMark, SignedCell(*row.FStar), row.FStarMark});
  return cells;
}

GraphData FuLiGraph(const FuLiWindows& windows) {
  GraphData graph = Graph(windows, kGraphFuLi, [](const FuLiWindow& w) {
    return w.DStar && w.FStar ? std::vector<double>{*w.DStar, *w.FStar}
                              : std::vector<double>{0.0, 0.0};
  });
  AddFuLiBound(graph, 2, FuLiTable::kDStar, windows.Sequences);
  AddFuLiBound(graph, 3, FuLiTable::kFStar, windows.Sequences);
  return graph;
}

std::vector<std::string> FuLiOutgroupGridTitles() {
  return {"Window", "Midpoint", "FL-D", "Sign", "FL-F", "Sign", "FW-H"};
}

std::vector<std::string> FuLiOutgroupGridRow(const FuLiOutgroupWindow& row) {
  std::vector<std::string> cells = Leading(row.Window);
  if (!row.D || !row.F) {
    cells.insert(cells.end(), {kNotDetermined, kNotDetermined, kNotDetermined, kNotDetermined});
  } else {
    cells.insert(cells.end(), {SignedCell(*row.D), row.DMark, SignedCell(*row.F), row.FMark});
  }
  cells.push_back(SignedCell(row.FayWu.H));
  return cells;
}

GraphData FuLiOutgroupGraph(const FuLiOutgroupWindows& windows) {
  return Graph(windows, kGraphFuLiOutgroup, [](const FuLiOutgroupWindow& w) {
    return w.D && w.F ? std::vector<double>{*w.D, *w.F, w.FayWu.H}
                      : std::vector<double>{0.0, 0.0, w.FayWu.H};
  });
}

std::string FuLiWindowLegend(bool any_not_determined) {
  return any_not_determined ? "   n.d., not determined;  #, P<0.10;  *, P<0.05;  **, P<0.02"
                            : "   #, P<0.10;  *, P<0.05;  **, P<0.02";
}

}  // namespace ovelt

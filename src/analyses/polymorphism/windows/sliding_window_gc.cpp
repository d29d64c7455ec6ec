#include "analyses/polymorphism/windows/sliding_window_gc.h"

#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "output/format_mask.h"

namespace ovelt {

GcWindows ComputeGcWindows(const Selection& sel, int32_t from, int32_t to,
                           const SlidingWindowSpec& geometry, const PolyGauge& gauge) {
  const auto make_row = [&sel](const WindowBounds& w) {
    GcWindow out;
    out.Window = w;
    int64_t a = 0, t = 0;
    for (int32_t seq = 1; seq <= sel.SelCount1; ++seq) {
      const char* cells = sel.SelMatrix1.sequence(seq);
      for (int32_t site = w.Start; site <= w.End; ++site) {
        switch (cells[site - 1]) {
          case 'A':
            ++a;
            break;
          case 'T':
            ++t;
            break;
          case 'G':
            ++out.G;
            break;
          case 'C':
            ++out.C;
            break;
          default:
            break;  // gaps and missing data are not bases
        }
      }
    }
    const int64_t bases = a + t + out.G + out.C;
    if (bases > 0) {
      out.GC = static_cast<double>(out.G + out.C) / static_cast<double>(bases);
      out.AT = static_cast<double>(a + t) / static_cast<double>(bases);
    }
    return out;
  };
  return RunWindows<GcWindow>(sel.SelSiteClass1, from, to, geometry, make_row,
                              [&gauge](int percent) { RaiseTo(gauge, percent); });
}

std::vector<std::string> GcGridTitles() {
  return {"Window", "Midpoint", "G+C", "A+T", "G", "C"};
}

std::vector<std::string> GcGridRow(const GcWindow& row) {
  return {WindowCell(row.Window),    Format(row.Window.Midpoint, "@@@@@"),
          Format(row.GC.value_or(0.0), "0.00000"), Format(row.AT.value_or(0.0), "0.00000"),
          Format(row.G, "@@@@"),     Format(row.C, "@@@@")};
}

GraphData GcGraph(const GcWindows& windows) {
  GraphData graph;
  graph.GraphKind = kGraphPolymorphism;
  graph.Table = WindowTable(windows.Capacity, 6);
  graph.SeriesNames = {"G+C", "A+T", "G", "C"};
  int32_t row = 0;
  for (const GcWindow& w : windows.Rows) {
    ++row;
    graph.Table.at(row, 1) = static_cast<float>(w.Window.Midpoint);
    graph.Table.at(row, 2) = static_cast<float>(w.GC.value_or(0.0));
    graph.Table.at(row, 3) = static_cast<float>(w.AT.value_or(0.0));
    graph.Table.at(row, 4) = static_cast<float>(w.G);
    graph.Table.at(row, 5) = static_cast<float>(w.C);
  }
  graph.Table.RowsUsed = row;
  graph.GraphRows = row;
  return graph;
}

}  // namespace ovelt

#include "analyses/polymorphism/windows/sliding_window_pi.h"

#include "output/format_mask.h"
#include "stats/harmonic.h"

namespace ovelt {

PiThetaWindows ComputePiThetaWindows(const Selection& sel, int32_t from, int32_t to,
                                     const SlidingWindowSpec& geometry, const PolyGauge& gauge) {
  const double a1 = HarmonicA1Double(sel.SelOutCount);
  const auto make_row = [&sel, a1](const WindowBounds& w) {
    PiThetaWindow out;
    out.Window = w;
    double k = 0.0;
    for (int32_t site = w.Start; site <= w.End; ++site) {
      const auto s = static_cast<size_t>(site);
      if (sel.SelSiteClass1[s] == kGapOrMissing) continue;
      k += sel.SelSiteDiversity1[s];
      if (sel.SelSiteDiversity1[s] > 0.0) ++out.SegSites;
    }
    if (w.NetSites != 0) {
      out.Pi = k / w.NetSites;
      out.Theta = out.SegSites / (w.NetSites * a1);
    }
    return out;
  };
  return RunWindows<PiThetaWindow>(sel.SelSiteClass1, from, to, geometry, make_row,
                                   [&gauge](int percent) { RaiseTo(gauge, percent); });
}

std::vector<std::string> PiThetaGridTitles() {
  return {"Window", "Midpoint", "Pi", "Theta", "S"};
}

std::string WindowCell(const WindowBounds& window) {
  return Format(std::to_string(window.Start) + "-" + std::to_string(window.End), "@@@@@@@@@@@");
}

std::vector<std::string> PiThetaGridRow(const PiThetaWindow& row) {
  return {WindowCell(row.Window), Format(row.Window.Midpoint, "@@@@@"),
          Format(row.Pi.value_or(0.0), "0.00000"), Format(row.Theta.value_or(0.0), "0.00000"),
          Format(row.SegSites, "@@@@")};
}

GraphData PiThetaGraph(const PiThetaWindows& windows) {
  GraphData graph;
  graph.GraphKind = kGraphPolymorphism;
  graph.Table = WindowTable(windows.Capacity, 5);
  int32_t row = 0;
  for (const PiThetaWindow& w : windows.Rows) {
    ++row;
    graph.Table.at(row, 1) = static_cast<float>(w.Window.Midpoint);
    graph.Table.at(row, 2) = static_cast<float>(w.Pi.value_or(0.0));
    graph.Table.at(row, 3) = static_cast<float>(w.Theta.value_or(0.0));
    graph.Table.at(row, 4) = static_cast<float>(w.SegSites);
  }
  graph.Table.RowsUsed = row;
  graph.GraphRows = row;
  return graph;
}

}  // namespace ovelt

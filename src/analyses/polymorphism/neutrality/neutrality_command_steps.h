#pragma once
// The steps that the commands of the neutrality tests share: the checks of their dialog, the
// region and window of a run, and the grid and chart of the windows.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/windows/window_options.h"
#include "command/analysis_binding.h"
#include "command/command_report.h"
#include "core/selection.h"

namespace ovelt {

// Puts the grid of the windows and their chart in `report`, shown with the text. A fault while
// filling them is a result too big to show: "Output too big" and the run ends.
void AddWindowTable(CommandReport& report, const std::string& file_name,
                    const std::vector<std::string>& titles,
                    const std::function<std::vector<std::vector<std::string>>()>& rows,
                    const std::function<GraphData()>& make_graph);

// The same for a table of windows: each row's cells through `cells`, the chart through `chart`.
template <class Windows, class Cells, class Chart>
void AddWindows(CommandReport& report, const std::string& file_name,
                const std::vector<std::string>& titles, const Windows& windows, Cells cells,
                Chart chart) {
  AddWindowTable(
      report, file_name, titles,
      [&windows, &cells] {
        std::vector<std::vector<std::string>> rows;
        rows.reserve(windows.Rows.size());
        for (const auto& row : windows.Rows) rows.push_back(cells(row));
        return rows;
      },
      [&windows, &chart] { return chart(windows); });
}

// The parts that Tajima's and Fu and Li's tests share: the checks of their dialog, their status
// words and the selection of one set over the region.
template <class Result>
[[nodiscard]] AnalysisParts<NeutralityOptions, Result> OneSetNeutralityParts() {
  AnalysisParts<NeutralityOptions, Result> parts;
  parts.Validate = [](const NeutralityOptions& options, const ActiveData& data) {
    return ValidateNeutralityOptions(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const NeutralityOptions&) { return "Computing Haplotype Diversity..."; };
  parts.Select = [](const ActiveData& data, const NeutralityOptions& options) {
    return SelectOneSet(data, options.SelSet1,
                        RunRegion(options.RegionFrom, options.RegionTo, data.NumSites));
  };
  return parts;
}

}  // namespace ovelt

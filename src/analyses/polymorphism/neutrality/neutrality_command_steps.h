#pragma once
// The steps that the commands of the neutrality tests share: the checks of their dialog, the
// region and window of a run, and the grid and chart of the windows.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "command/command_report.h"
#include "core/selection.h"

namespace ovelt {

// The region of a run: the options' range, 0 as its end standing for the last site.
[[nodiscard]] RegionSelection RunRegion(int32_t from, int32_t to, int32_t num_sites);

// The window of a run, when the sliding window is on.
template <class Options>
[[nodiscard]] std::optional<SlidingWindowSpec> RunWindow(const Options& options,
                                                         const ActiveData& data) {
  if (!options.SlidingOn) return std::nullopt;
  return NeutralityWindow(options.WindowLength, options.StepSize, data.NumSites, data.GapsInWindow);
}

// Puts the grid of the windows and their chart in `report`, shown with the text. A fault while
// filling them is a result too big to show: "Output too big" and the run ends.
void AddWindowTable(CommandReport& report, const std::string& file_name,
                    const std::vector<std::string>& titles,
                    const std::function<std::vector<std::vector<std::string>>()>& rows,
                    const std::function<GraphData()>& make_graph);

}  // namespace ovelt

#pragma once
// The steps that the runs of the neutrality tests share: a refusal that keeps the dialog open, a
// failure that ends the run, and putting up the table of the windows with its graph.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analyses/polymorphism/neutrality_options.h"
#include "analyses/polymorphism/sliding_window.h"
#include "output/graph_data.h"
#include "core/active_data.h"
#include "output/output_channel.h"
#include "ui/platform.h"

namespace ovelt {

// Shows the message, and why where the face needs it; the dialog stays open (`ReopenDialog`).
// Always false.
bool RefuseRun(OutputChannel& channel, Platform& platform, const SelectionRefusal& refusal);

// Shows the message of a failed computation; `RunFailed` is set. Always false.
bool FailRun(OutputChannel& channel, Platform& platform, const std::string& message);

// The region and window of a run of one set, once its options passed and its selection holds
// enough sequences.
struct NeutralityRunStart {
  int32_t From = 1;
  int32_t To = 1;
  std::optional<SlidingWindowSpec> Window;
};

// The opening steps of Tajima's and Fu and Li's runs: check the options, clean the output, make
// the selection of `options.SelSet1` and check its size for `command`. Nothing when the run is
// refused (the message was shown and the dialog stays open).
std::optional<NeutralityRunStart> StartNeutralityRun(ActiveData& ad, OutputChannel& channel,
                                                     Platform& platform,
                                                     const NeutralityOptions& options,
                                                     int16_t command);

// The window grid: the titles and `rows` cells per window, then the graph from `make_graph`, and
// the result shown with its graph. A fault while filling them gives the "Output too big" message
// and ends the run (false).
bool ShowWindowTable(ActiveData& ad, OutputChannel& channel, Platform& platform,
                     const std::vector<std::string>& titles,
                     const std::function<std::vector<std::vector<std::string>>()>& rows,
                     const std::function<GraphData()>& make_graph, GraphData& graph);

}  // namespace ovelt

#pragma once
// Finding and opening the chart module (ovelt-graph.so) when a run is to draw a chart, so that
// `ovelt` itself links no Qt and starts as fast without a chart as a plain C++ program.

#include <filesystem>
#include <string>
#include <vector>

#include "ui/qt/graph_module.h"

namespace ovelt {

// The environment variable that names the folder of the module; when it is set, that folder is
// the only place looked in (a module under test, or none at all).
inline constexpr const char* kGraphModuleVariable = "OVELT_GRAPH_MODULE_DIR";

// Where the module is looked for, in order: $OVELT_GRAPH_MODULE_DIR alone when set; otherwise
// <program dir>/ovelt-graph.so (a build tree) and <program dir>/../lib/ovelt/ovelt-graph.so (an
// install under a prefix).
[[nodiscard]] std::vector<std::filesystem::path> GraphModuleCandidates(
    const std::string& program_dir);

struct GraphModule {
  GraphSaveFunction Save = nullptr;  // null when no usable module was found
  std::string Fault;                 // why not, in the user's words
};

// Opens the first candidate that exists and checks its layout number. A module of another
// layout, or one without the entries, is refused, not tried further down the list: the user
// put it first. The module stays loaded for the rest of the process.
[[nodiscard]] GraphModule LoadGraphModule(const std::string& program_dir);

}  // namespace ovelt

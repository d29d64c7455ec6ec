#pragma once
// The contract between the command line and the chart painter built as a loadable module
// (ovelt-graph.so): the command line opens it only when a chart is to be drawn, so that a run
// without one never loads Qt. Both sides compile this header; the layout number says which
// version of it (and of GraphPicture) a module was built against. No Qt here.

#include "output/graph_picture.h"

namespace ovelt {

// Raise whenever GraphPicture or the entries below change shape: a module built against another
// number is refused rather than handed a picture it would misread.
inline constexpr int kGraphModuleLayout = 1;

// The module's file name, beside the executables of a build and under lib/ovelt of an install.
inline constexpr const char* kGraphModuleFile = "ovelt-graph.so";

// The names the entries are exported under.
inline constexpr const char* kGraphLayoutEntry = "ovelt_graph_layout";
inline constexpr const char* kGraphSaveEntry = "ovelt_graph_save";

// The layout number the module was built against (kGraphModuleLayout of its time).
using GraphLayoutFunction = int (*)();
// Writes the picture to `path` (SVG, PNG or BMP by its extension), whole or not at all; 1 when
// the file was written, 0 otherwise.
using GraphSaveFunction = int (*)(const GraphPicture* picture, const char* path);

}  // namespace ovelt

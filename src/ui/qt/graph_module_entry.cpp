// The entries of the chart module: plain C names, so the command line can find them with dlsym.
// Everything else in the module stays hidden (see src/CMakeLists.txt).

#include "ui/qt/graph_module.h"
#include "ui/qt/graph_painter.h"

#define OVELT_GRAPH_EXPORT extern "C" __attribute__((visibility("default")))

OVELT_GRAPH_EXPORT int ovelt_graph_layout() {
  return ovelt::kGraphModuleLayout;
}

OVELT_GRAPH_EXPORT int ovelt_graph_save(const ovelt::GraphPicture* picture, const char* path) {
  if (picture == nullptr || path == nullptr) return 0;
  // No exception may cross into the caller, which knows only this C entry.
  try {
    return ovelt::SaveGraphFile(*picture, path) ? 1 : 0;
  } catch (...) {
    return 0;
  }
}

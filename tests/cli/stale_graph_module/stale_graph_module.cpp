// A chart module as an older build would have left it: the entries are there, the layout number
// is not this program's. Its save entry writes the file anyway, so a loader that failed to
// check the number would be caught by the file appearing.

#include <fstream>

#include "ui/qt/graph_module.h"

#define STALE_EXPORT extern "C" __attribute__((visibility("default")))

STALE_EXPORT int ovelt_graph_layout() {
  return ovelt::kGraphModuleLayout + 1;
}

STALE_EXPORT int ovelt_graph_save(const ovelt::GraphPicture*, const char* path) {
  std::ofstream(path) << "drawn by a stale module\n";
  return 1;
}

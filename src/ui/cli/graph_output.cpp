#include "ui/cli/graph_output.h"

#include "output/graph_layout.h"

#ifdef OVELT_GRAPH_MODULE
#include "ui/cli/console_platform.h"
#include "ui/cli/graph_module_loader.h"
#endif

namespace ovelt {

std::string GraphFileNameFault(const std::string& path) {
  const size_t dot = path.find_last_of("./");
  std::string extension = dot == std::string::npos || path[dot] != '.' ? "" : path.substr(dot);
  for (char& c : extension) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  if (extension == ".png" || extension == ".svg" || extension == ".bmp") return "";
  return "\"" + path + "\" names no picture format: end the name in .png, .svg or .bmp";
}

bool WriteGraphFile(const OutputChannel& channel, const std::string& path, Platform& platform) {
  const GraphPicture picture =
      channel.GraphOn != 0 ? LayoutGraph(channel.Graph(), {}) : GraphPicture{};
  if (!picture.HasChart) {
    platform.MessageBox(std::string(kNoGraphLeft) + "\nNothing was written on " + path,
                        MsgIcon::kWarning);
    return false;
  }
#ifdef OVELT_GRAPH_MODULE
  // The painter is loaded only here, so a run without a chart never loads Qt.
  const GraphModule module = LoadGraphModule(ExecutableDirectory());
  if (module.Save == nullptr) {
    platform.MessageBox(module.Fault + ".\nNothing was written on " + path, MsgIcon::kWarning);
    return false;
  }
  if (module.Save(&picture, path.c_str()) == 1) return true;
  platform.MessageBox("Can't save the graph on the file: " + path, MsgIcon::kWarning);
#else
  platform.MessageBox(
      "This build draws no graphs (it was made without Qt).\nNothing was written on " + path,
      MsgIcon::kWarning);
#endif
  return false;
}

}  // namespace ovelt

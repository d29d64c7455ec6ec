#include "ui/cli/graph_output.h"

#include "output/graph_layout.h"

#ifdef OVELT_GRAPH_DRAW
#include "ui/qt/graph_painter.h"
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
#ifdef OVELT_GRAPH_DRAW
  if (SaveGraphFile(picture, path)) return true;
  platform.MessageBox("Can't save the graph on the file: " + path, MsgIcon::kWarning);
#else
  platform.MessageBox(
      "This build draws no graphs (it was made without Qt).\nNothing was written on " + path,
      MsgIcon::kWarning);
#endif
  return false;
}

}  // namespace ovelt

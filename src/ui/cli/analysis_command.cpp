#include "ui/cli/analysis_command.h"

#include <ostream>

namespace ovelt {

bool WriteJsonFile(const std::string& path, const JsonText& json, Platform& platform,
                   std::ostream& out) {
  if (path == "-") {
    out << json.Text() << "\n";
    return true;
  }
  std::ofstream file(path, std::ios::binary);
  file << json.Text() << "\n";
  file.flush();
  if (!file) {
    platform.MessageBox("Can't save the output on the file: " + path, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace ovelt

#include "ui/cli/analysis_command.h"

#include <ostream>

#include "files/whole_file.h"

namespace ovelt {

bool WriteJsonFile(const std::string& path, const JsonText& json, Platform& platform,
                   std::ostream& out) {
  if (path == "-") {
    out << json.Text() << "\n";
    return true;
  }
  if (!WriteWholeFile(path, json.Text() + "\n")) {
    platform.MessageBox("Can't save the output on the file: " + path, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace ovelt

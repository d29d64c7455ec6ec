#include "ui/qt/help_text.h"

#include "core/shell/workbench.h"
#include "core/text_case.h"

namespace ovelt {

std::string HelpFileNotFound(const std::string& help_file_name) {
  const std::string name = ToUpperAscii(help_file_name);
  const auto dot = name.rfind('.');
  const std::string program = (dot == std::string::npos ? name : name.substr(0, dot)) + ".EXE";
  return "Help file: '" + name + "' not found. Make sure that it is in the same directory as " +
         program;
}

std::string CitationText() {
  return std::string("When you publish results obtained with this program, please cite:\n\n") +
         "Ovelt Workbench " + kVersionText + " (" + kVersionDate +
         "). Population-genetic analysis of aligned DNA sequences.";
}

}  // namespace ovelt

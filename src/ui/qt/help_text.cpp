#include "ui/qt/help_text.h"

#include "shell/workbench.h"

namespace ovelt {

std::string CitationText() {
  return std::string("When you publish results obtained with this program, please cite:\n\n") +
         "Ovelt Workbench " + kVersionText + " (" + kVersionDate +
         "). Population-genetic analysis of aligned DNA sequences.";
}

}  // namespace ovelt

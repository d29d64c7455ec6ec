#pragma once
// The words that name a result in its windows, its printout and its saved file. Each command
// gives its own; the channel keeps those of the result that stands.

#include <cstddef>
#include <string>

namespace ovelt {

struct ResultLabels {
  // The title of the text window, the printout and the saved file.
  std::string Title;
  // The caption of the text window, before " - " and the data file's name.
  std::string TextCaption = "Output";
  // The captions of the grid windows; an empty one reads "Output. Grid".
  std::string GridCaption;
  std::string SecondGridCaption;
  // The head of the grid in saved output (CR LF between its lines), the separator of its cells
  // and the length of the rules around it.
  std::string GridTextHead;
  std::string GridCellSeparator = "  ";
  size_t GridRuleLength = 74;
};

}  // namespace ovelt

#include "stats/significance_words.h"

namespace ovelt {
namespace {

std::string_view TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const size_t last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

}  // namespace

std::string SignificanceWords(std::string_view mark, MarkFamily family) {
  const std::string_view m = TrimBlanks(mark);
  if (m.empty()) return "Not significant, P > 0.10";
  if (m == "#") return "Not significant, 0.10 > P > 0.05";
  if (m == "*") return "*, P < 0.05";
  if (m == "n.d.") return "Not determined";
  if (family == MarkFamily::kTajima) {
    if (m == "**") return "**, P < 0.01";
    if (m == "***") return "***, P < 0.001";
  } else {
    if (m == "**") return "**, P < 0.02";
  }
  return "";
}

std::string SignificanceLegend(MarkFamily family) {
  if (family == MarkFamily::kTajima) {
    return " n.d., not determined;  # P<0.10;  * P<0.05;  ** P<0.01;  *** P<0.001";
  }
  return " n.d., not determined;  #, P<0.10;  *, P<0.05;  **, P<0.02";
}

}  // namespace ovelt

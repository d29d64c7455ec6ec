// Recognition of the kind of a data file from its first line alone; the extension plays no part.

#include <cctype>
#include <string>
#include <string_view>

#include "core/active_data.h"
#include "formats/read_file.h"

namespace ovelt {
namespace {

bool StartsWithNoCase(std::string_view line, std::string_view upper_prefix) {
  if (line.size() < upper_prefix.size()) return false;
  for (size_t i = 0; i < upper_prefix.size(); ++i) {
    if (std::toupper(static_cast<unsigned char>(line[i])) != upper_prefix[i]) return false;
  }
  return true;
}

// A PHYLIP header starts with a count of at most five digits. Walk six positions from the first
// non-blank one: a blank (or the end of the line) leaves the verdict as it stands, a non-digit
// makes it false, a digit makes it true unless it is the sixth.
bool StartsWithCount(std::string_view line) {
  size_t p = 0;
  while (p < line.size() && line[p] == ' ') ++p;
  bool verdict = false;
  for (size_t k = 0; k < 6; ++k) {
    const size_t at = p + k;
    if (at >= line.size() || line[at] == ' ') break;
    if (line[at] < '0' || line[at] > '9') return false;
    verdict = k < 5;
    if (!verdict) break;
  }
  return verdict;
}

}  // namespace

int DetectFileKind(const std::string& first_line) {
  const std::string_view line(first_line);
  if (StartsWithNoCase(line, ">DL;")) return kNbrf;
  if (!line.empty() && line[0] == '>') return kFasta;
  if (line.size() >= 2 && line[0] == '#' && (line[1] == 'M' || line[1] == 'm')) return kMega;
  if (StartsWithNoCase(line, "#NEXUS")) return kNexus;
  if (StartsWithCount(line)) return kPhylip;
  return -1;
}

}  // namespace ovelt

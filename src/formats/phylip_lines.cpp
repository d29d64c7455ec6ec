// Line helpers of the PHYLIP reader.

#include <string>
#include <string_view>

#include "core/utf8_text.h"
#include "formats/phylip_parts.h"

namespace ovelt {

bool IsEmptyLine(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos;
}

bool NextNonEmptyLine(LineReader& in, std::string_view& line) {
  while (in.Next(line)) {
    if (!IsEmptyLine(line)) return true;
  }
  return false;
}

size_t PhylipNameBytes(std::string_view line) { return BytesOfCharacters(line, 10); }

std::string PhylipName(std::string_view line) {
  std::string_view field = line.substr(0, PhylipNameBytes(line));
  const size_t last = field.find_last_not_of(' ');
  return std::string(last == std::string_view::npos ? std::string_view() : field.substr(0, last + 1));
}

std::string_view PhylipCells(std::string_view line) { return line.substr(PhylipNameBytes(line)); }

}  // namespace ovelt

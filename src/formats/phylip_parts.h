#pragma once
// Pieces of the PHYLIP reader: the header line, the layout of the matrix, and the lines.

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/line_reader.h"

namespace ovelt {

struct PhylipHeader {
  int32_t seqs = 0;
  int32_t sites = 0;
};

// The counts of the first line. Throws the PHYLIP reports for a malformed line, the bad-file
// report for more sequences than a 16-bit count holds, and the report on genetic distances for a
// line without a number of sites.
[[nodiscard]] PhylipHeader ParsePhylipHeader(std::string_view line, const std::string& path);

struct PhylipLayout {
  bool interleaved = false;
  int32_t block_length = 60;
};

// Decides the layout from the lines after the header (`in` is left anywhere).
[[nodiscard]] PhylipLayout DecidePhylipLayout(LineReader& in, const PhylipHeader& header,
                                              const std::string& path);

// A line of nothing but blanks and tabs is empty.
[[nodiscard]] bool IsEmptyLine(std::string_view line);
// The next line that is not empty; false at the end of the file.
[[nodiscard]] bool NextNonEmptyLine(LineReader& in, std::string_view& line);
// The bytes of the name field: ten characters, a letter written in UTF-8 counting as one, as
// the writers of other programs count them.
[[nodiscard]] size_t PhylipNameBytes(std::string_view line);
// The name field: the first ten characters without trailing blanks.
[[nodiscard]] std::string PhylipName(std::string_view line);
// What follows the name field.
[[nodiscard]] std::string_view PhylipCells(std::string_view line);

}  // namespace ovelt

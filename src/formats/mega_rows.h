#pragma once
// Pieces of a MEGA file shared by its two layouts.

#include <string>
#include <string_view>

#include "formats/line_reader.h"
#include "formats/read_file.h"
#include "formats/cell_rules.h"

namespace ovelt {

// A line that opens with "#": the name behind it (up to a blank or tab) and the text after it.
struct MegaRow {
  std::string name;
  std::string_view rest;
};

[[nodiscard]] inline bool IsMegaRow(std::string_view line) { return !line.empty() && line[0] == '#'; }
[[nodiscard]] MegaRow SplitMegaRow(std::string_view line);

// The layouts, each starting on the first "#name" line of the data (`first_row`, which stays
// valid until `in` is read again) and filling the matrix, names, NumSites and layout attributes.
void ReadMegaSequential(LineReader& in, std::string_view first_row, const std::string& path,
                        const CellTable& table, LoadedFile& out);
void ReadMegaInterleaved(LineReader& in, std::string_view first_row, const std::string& path,
                         const CellTable& table, LoadedFile& out);

}  // namespace ovelt

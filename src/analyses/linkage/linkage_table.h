#pragma once
// The table of pairs: the grid window's cells, and the lines of the file that takes the table
// when it is too long for the grid, with that file's head.
//
// D, D' and R print with "0.000", a non-negative value with a blank in front so that it lines
// up with the negative ones; a test's cell is its P (Fisher) or value (chi-square) in "0.000",
// its star mark and "B" when it is significant by the Bonferroni procedure.

#include <string>
#include <vector>

#include "analyses/linkage/linkage_compute.h"
#include "core/selection.h"
#include "platform/platform.h"

namespace ovelt {

// The column head of the text table, by the tests asked for (0 to 3).
[[nodiscard]] std::string LinkageTextHead(int tests);

[[nodiscard]] std::vector<std::string> LinkageGridTitles(int tests);
[[nodiscard]] std::vector<std::string> LinkageGridCells(const LinkagePairRow& row);

// One line of the file: the site numbers and the distance right-aligned in five places, all
// fields separated by two blanks.
[[nodiscard]] std::string LinkageFileLine(const LinkagePairRow& row);

// What goes before the lines: the banner with the date and time of writing, the title, the
// region and its sites, the sites analysed, the pairs and the column head.
[[nodiscard]] std::string LinkageFileHead(const LinkageResult& result,
                                          const Platform::DateTime& when);

}  // namespace ovelt

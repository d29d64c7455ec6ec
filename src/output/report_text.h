#pragma once
// The text blocks of saved output files and of the session file. Every line ends in CR LF; a
// block that "prints" a text (the report, the head) adds a line end after it, as the classic
// Print # statement did.

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "core/line_end.h"
#include "output/output_grid.h"
#include "output/result_labels.h"
#include "platform/platform.h"

namespace ovelt {

inline constexpr const char* kProgramBanner = " Ovelt  Ver. 4.00.5";

// "05 - March - 2004" and the 24-hour "14:05:09".
[[nodiscard]] std::string DateText(const Platform::DateTime& when);
[[nodiscard]] std::string TimeText(const Platform::DateTime& when);

// Banner line with date and time, a line of "=" as long, two empty lines.
[[nodiscard]] std::string CommonOpening(const Platform::DateTime& when);

// The title with a trailing blank, a rule of "-" under it, then `body` (the report, or the report
// head when the text window holds nothing) with a line end; no body when it is empty.
[[nodiscard]] std::string TitleBlock(const std::string& title, const std::string& body);

// An empty line, the rule, an empty line, the head (none when empty), the rule, and one line per
// row with its cells joined by the code's separator.
[[nodiscard]] std::string GridAsText(const ResultLabels& labels, const std::string& head,
                                     const OutputGrid& grid);

// The same for a table streamed row by row to `out` (a table too long for the grid window).
void StreamGridAsText(std::ostream& out, const ResultLabels& labels, const std::string& head,
                      int64_t rows,
                      const std::function<std::vector<std::string>(int64_t)>& row);

// A table file of a command's own: `head` as it stands, then one line per row, its cells written
// one after the other (the row's own blanks separate them).
void StreamTableFile(std::ostream& out, const std::string& head, int64_t rows,
                     const std::function<std::vector<std::string>(int64_t)>& row);

// The second table, laid out as the grid, its own column titles standing as the head.
[[nodiscard]] std::string SecondTableAsText(const ResultLabels& labels, const OutputGrid& grid);

// A rule of 87 "-", the head, one line per pair of populations; "" when the table has no rows.
[[nodiscard]] std::string GeneFlowAsText(const GeneFlowTable& table);
[[nodiscard]] std::string GeneFlowHead(bool with_sequence_measures);

// 38 "<" and 38 ">", then two line ends: the line between two results of a session file.
[[nodiscard]] std::string SessionSeparator();

// " Ovelt Session Terminated on  " with date and time.
[[nodiscard]] std::string SessionEndLine(const Platform::DateTime& when);

}  // namespace ovelt

#pragma once
// Heads of the "grid as text" blocks of saved and session files, by `ResultCode`. Where an
// analysis has several heads (by the tests or statistics chosen) this gives the first; the
// analysis sets its own through OutputChannel::SetGridTextHead. Lines of a head of two lines are
// joined by CR LF.

#include <string>

namespace ovelt {

// "" for a code without a head (and for 16, whose head always depends on the statistic).
[[nodiscard]] std::string DefaultGridTextHead(int result_code);

// The dashed rule above and below the head: 74 dashes, 82 for codon usage (23).
[[nodiscard]] std::string GridTextRule(int result_code);

// The text between the cells of a row: two blanks, one for functional regions (17).
[[nodiscard]] std::string GridCellSeparator(int result_code);

}  // namespace ovelt

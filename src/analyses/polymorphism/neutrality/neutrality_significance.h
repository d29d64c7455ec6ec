#pragma once
// Significance marks of the neutrality tests (`SignificanceMark`), read from the stored critical
// values for the sample size n. A value at or below a lower bound, or at or above an upper one,
// is beyond it; values and bounds are compared as 32-bit floats, as the tables hold them.

#include <string>

#include "analyses/polymorphism/neutrality/critical_tables.h"

namespace ovelt {

// Tajima's D: "***" beyond the 0.1 % bounds, "**" the 1 %, "*" the 5 %, "#" the 10 %, else "";
// "n.d." for n with no row (below 4, above 1200) and for a value that is not a number.
[[nodiscard]] std::string SignificanceTajima(double d, int n);

// Fu and Li's statistics: "**  " beyond the 2 % bounds, "*   " the 5 %, "#   " the 10 %, else
// four blanks; "n.d." for n with no row in `table` (below its first row, above 500) and for a
// value that is not a number.
[[nodiscard]] std::string SignificanceFuLi(double value, FuLiTable table, int n);

// A mark without the blanks that pad it to the width of its column ("**  " is "**").
[[nodiscard]] std::string MarkText(const std::string& mark);

}  // namespace ovelt

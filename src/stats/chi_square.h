#pragma once
// Pearson's chi-square of a 2 x 2 table (a b / c d), plain and with Yates' continuity
// correction (Yates 1934), with one degree of freedom:
//   chi2       = N (ad - bc)^2 / ((a+b)(c+d)) / ((a+c)(b+d))
//   chi2 Yates = N (|ad - bc| - N/2)^2 / ((a+b)(c+d)) / ((a+c)(b+d))
// Cells, their sums and products are 64-bit integers. A product that overflows throws
// StatsError ("Overflow"); an empty row or column throws StatsError ("Division by zero");
// a negative cell throws StatsError ("Invalid procedure call or argument").

#include <cstdint>

namespace ovelt {

[[nodiscard]] float ChiSquare(int32_t a, int32_t b, int32_t c, int32_t d);

[[nodiscard]] float ChiSquareYates(int32_t a, int32_t b, int32_t c, int32_t d);

}  // namespace ovelt

#pragma once
// Which row of a table of critical values serves a sample of n sequences. Up to the end of the
// one-by-one rows the row is n itself; beyond it the tabulated sizes thin out, and n takes the
// nearer of the two rows around it: with T(i - 1) < n <= T(i) and the midpoint
// m = Int((T(i) + 1 - T(i - 1)) / 2), row i - 1 when T(i - 1) + m >= n, else row i.

#include <optional>

namespace ovelt {

// Row of Tajima's table for n: nullopt ("n.d.") below 4 and above 1200; n above 1000 takes the
// last row (n = 1000).
[[nodiscard]] std::optional<int> TajimaCriticalRowFor(int n);

// Row of a Fu and Li table whose first row is `first_row` (3 or 4) for n: nullopt below the first
// row and above 500; n from 101 to 500 takes the last row (n = 100).
[[nodiscard]] std::optional<int> FuLiCriticalRowFor(int n, int first_row);

}  // namespace ovelt

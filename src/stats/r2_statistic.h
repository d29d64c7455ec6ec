#pragma once
// The R2 statistic of Ramos-Onsins and Rozas (2002):
//   R2 = Sqr(sum over sequences i of (U(i) - k / 2)^2 / n) / S,
// U(i) the singleton mutations carried by sequence i, k the average number of differences and
// S the segregating sites. S of 0 (or no sequence) gives 0.

#include <cstdint>
#include <vector>

namespace ovelt {

// `singletons`[i] = U(i) for the sequences i = 1..n; index 0 is unused.
[[nodiscard]] double R2Statistic(const std::vector<double>& singletons, double k,
                                 int32_t seg_sites);

}  // namespace ovelt

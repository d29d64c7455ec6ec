#pragma once
// Harpending's (1994) raggedness of a mismatch distribution. With x(i) the share of the pairs
// of sequences that differ at i sites and d the last class:
//   r = sum for i = 1..d of (x(i) - x(i - 1))^2 + x(d)^2.
// Smooth, unimodal distributions (growing populations) give small values. No pair gives 0.

#include <cstdint>
#include <span>

namespace ovelt {

// `pair_counts`[i] = the number of pairs with i differences, i = 0..d; `pairs` = all pairs,
// n (n - 1) / 2. Empty classes after the last one found leave r unchanged.
[[nodiscard]] double RaggednessFromHistogram(std::span<const int64_t> pair_counts, int64_t pairs);
[[nodiscard]] double RaggednessFromHistogram(std::span<const int32_t> pair_counts, int64_t pairs);

}  // namespace ovelt

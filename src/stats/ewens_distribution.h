#pragma once
// The distribution of the number of haplotypes K in a sample of n sequences under the infinite
// alleles model (Ewens 1972): P(K = j) = |s(n, j)| theta^j / (theta (theta + 1) ... (theta + n -
// 1)), s the Stirling numbers of the first kind. Built row by row from the recursion over the
// sample size, P(m, j) = P(m - 1, j) (m - 1) / (theta + m - 1) + P(m - 1, j - 1) theta / (theta + m
// - 1) with P(1, 1) = 1, which is the Stirling recursion with its common factor divided out, in
// 36-digit decimal arithmetic so that tails far below 1e-16 keep their digits.

#include <cstdint>
#include <vector>

#include "stats/ewens_decimal.h"

namespace ovelt {

// P(K = j) for j = 0..`max_haplotypes` (index 0 holds 0), in a sample of `n` sequences.
// Requires n >= 1, 1 <= max_haplotypes <= n and theta > 0 (std::invalid_argument otherwise).
// Time O(n max_haplotypes), memory O(max_haplotypes).
[[nodiscard]] std::vector<Decimal36> EwensProbabilities(int32_t n, int32_t max_haplotypes,
                                                        double theta);

}  // namespace ovelt

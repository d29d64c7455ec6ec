#pragma once
// Fu's Fs (Fu 1997) and Strobeck's S (Strobeck 1987) from the number of haplotypes h of a sample
// of n sequences, with theta estimated by the average number of differences k. Under the
// infinite-alleles distribution of the haplotype count K (Ewens 1972), S' = P(K >= h) and
// Fs = ln(S' / (1 - S')); Strobeck's S = P(K <= h). Probabilities are summed in 36-digit
// decimal arithmetic. A value out of range (no sample with fewer haplotypes, or tails beyond
// what the logarithms can tell apart) is not determined; the reports print it as 1234567.

#include <cstdint>
#include <optional>

namespace ovelt {

struct FsResult {
  std::optional<double> Fs;  // none when out of range
  double StrobeckS = 0.0;  // P(K <= h)
  double PEqual = 0.0;     // P(K = h)
};

// `FsStatistic(n, h, theta)`: requires n >= 1, 1 <= h <= n and theta > 0
// (std::invalid_argument otherwise).
[[nodiscard]] FsResult FsStatistic(int32_t n, int32_t h, double theta);

}  // namespace ovelt

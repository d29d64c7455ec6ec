#pragma once
// Fay and Wu's H (Fay and Wu 2000): with the outgroup's nucleotide taken as ancestral, S(i)
// derived variants are carried by i of the n sequences, and
//   ThetaH  = sum of 2 S(i) i^2 / (n (n - 1)),
//   ThetaPi = sum over i = 1..n-1 of 2 S(i) i (n - i) / (n (n - 1)),
//   H = ThetaPi - ThetaH.
// An excess of high-frequency derived variants makes H negative. No variant gives 0; n below 2
// gives 0 as well (no pairs).

#include <cstdint>
#include <vector>

namespace ovelt {

struct FayWuResult {
  double ThetaH = 0.0;
  double ThetaPi = 0.0;
  double H = 0.0;
};

// `spectrum`[i] = S(i) for i = 0..n; entries 0 and n (no derived copy, or a fixed difference)
// carry no polymorphism and are not summed.
[[nodiscard]] FayWuResult FayWuH(const std::vector<int32_t>& spectrum, int32_t n);

}  // namespace ovelt

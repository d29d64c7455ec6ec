#pragma once
// Watterson's harmonic number a1(n) = sum of 1/i for i = 1 .. n-1 (Watterson 1975), the
// expected number of segregating sites per unit of theta in a sample of n sequences.
// n of 1 or less gives 0.

#include <cstdint>

namespace ovelt {

// a1 summed in 64 bits and rounded once, at the end, to a 32-bit float.
[[nodiscard]] float HarmonicA1(int32_t n);

// a1 in 64 bits.
[[nodiscard]] double HarmonicA1Double(int32_t n);

}  // namespace ovelt

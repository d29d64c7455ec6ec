#pragma once
// The expected number of haplotypes (alleles) in a sample of n sequences under the infinite
// alleles model (Ewens 1972): E[K] = sum of theta / (theta + i) for i = 0 .. n - 1.
// n of 0 or below gives 0; theta must be above 0.

#include <cstdint>

namespace ovelt {

[[nodiscard]] double ExpectedHaplotypes(int32_t n, double theta);

}  // namespace ovelt

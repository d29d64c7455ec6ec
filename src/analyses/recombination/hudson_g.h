#pragma once
// Hudson's (1987) g(C, n): the expected variance of the number of differences between two
// sequences of a sample of n, over theta squared, under recombination parameter C = 4Nc
// (Hudson 1987, eq. 3 with the terms of the sample variance of Kij). The moment estimate of C
// is the C at which g falls to the observed ratio.

#include <cstdint>

namespace ovelt {

// g(C, n) in double precision, for C > 0 and n >= 2. Not finite (NaN, infinity) when C or n
// lie outside that domain.
[[nodiscard]] double HudsonG(double c, int32_t n);

}  // namespace ovelt

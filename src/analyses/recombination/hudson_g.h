#pragma once
// Hudson's (1987) g(C, n): the expected sample variance of the pairwise differences Kij, freed
// of its mutational part and scaled by theta squared, under the recombination parameter
// C = 4Nc. It falls as C grows; the moment estimate of C is where it meets the observed ratio.

#include <cstdint>

namespace ovelt {

// g(C, n) in double precision, for C > 0 and n >= 2. Not finite (NaN, infinity) when C or n
// lie outside that domain.
[[nodiscard]] double HudsonG(double c, int32_t n);

}  // namespace ovelt

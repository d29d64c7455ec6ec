#pragma once
// Fisher's exact test of a 2 x 2 table (a b / c d), by hypergeometric probabilities of the
// tables with the margins of the observed one (Fisher 1935).
//
// The first tail runs from the observed table to the extreme in the observed direction. The
// second tail is filled from the far extreme of the other direction inward for as long as its
// accumulated probability does not exceed the first tail's (the test is on the sums, not on
// each table's probability). The two-tailed value is the sum of both, capped at 1.

#include <cstdint>

#include "stats/log_factorial.h"

namespace ovelt {

// Returns the two-tailed P as a 32-bit float and sets `oneTail` to the first tail.
// `logFactorial` must be built for at least a + b + c + d. Negative cells or a table that is
// too small throw StatsError with the words "Error computing Fisher Exact test".
[[nodiscard]] float FisherExact(int32_t a, int32_t b, int32_t c, int32_t d, double& oneTail,
                                const LogFactorialTable& logFactorial);

}  // namespace ovelt

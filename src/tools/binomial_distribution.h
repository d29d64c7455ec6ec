#pragma once
// The binomial distribution (Feller 1968) of the number X of successes in n independent
// trials of probability p: P[X = i] = C(n, i) p^i (1 - p)^(n - i), summed in logarithms with a
// table of ln i! so that no factorial overflows; E[X] = n p, var[X] = n p (1 - p).
// Requires 0 < p < 1 and 0 <= k <= n < 32767 (as CheckBinomial ensures); P[X < 0] is 0.

#include <cstdint>

#include "tools/discrete_probabilities.h"

namespace ovelt {

[[nodiscard]] DiscreteProbabilities BinomialProbabilities(double p, int32_t n, int32_t k);

}  // namespace ovelt

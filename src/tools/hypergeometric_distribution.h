#pragma once
// The hypergeometric distribution (Feller 1968) of the number X of marked elements in a
// sample of n drawn without replacement from a population of N elements, M of them marked:
// P[X = i] = C(M, i) C(N - M, n - i) / C(N, n), in logarithms with a table of ln i!;
// E[X] = n M / N, var[X] = n (M / N) (1 - M / N) (N - n) / (N - 1), and 0 for N of 1.
// Values of i that the margins make impossible have probability 0.
// Requires 0 <= M <= N, 1 <= n <= N, 0 <= k <= min(n, M), N < 32767 (CheckHypergeometric).

#include <cstdint>

#include "tools/discrete_probabilities.h"

namespace ovelt {

[[nodiscard]] DiscreteProbabilities HypergeometricProbabilities(int32_t population,
                                                                int32_t successes, int32_t n,
                                                                int32_t k);

}  // namespace ovelt

#pragma once
// The Poisson distribution (Feller 1968) of mean lambda:
// P[X = i] = lambda^i e^-lambda / i!, formed as exp(i ln lambda - lambda - ln i!) with a table of
// ln i!; E[X] = var[X] = lambda.
// Requires lambda > 0 and 0 <= k < 32767 (as CheckPoisson ensures); P[X < 0] is 0.

#include <cstdint>

#include "tools/discrete_probabilities.h"

namespace ovelt {

[[nodiscard]] DiscreteProbabilities PoissonProbabilities(double lambda, int32_t k);

}  // namespace ovelt

#pragma once
// ln Gamma(x) by the Lanczos (1964) approximation with six terms, in the form of the first
// edition of Numerical Recipes (gammln): absolute error near 2e-10 for x >= 1.
// x of 0 or below is outside the approximation and throws StatsError
// ("Invalid procedure call or argument").

namespace ovelt {

[[nodiscard]] double LogGamma(double x);

}  // namespace ovelt

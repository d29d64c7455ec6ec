#pragma once
// Poisson random deviates (the poidev routine of Numerical Recipes, Press et al. 1986) and
// Poisson probabilities.
//
// Below a mean of 12 the deviate is the number of uniform deviates whose running product
// stays above exp(-mean); from 12 on it comes from rejection under a Lorentzian comparison
// function. The values derived from the mean are kept in a PoissonState owned by the caller
// and recomputed only when the mean changes, compared as 32-bit floats.

#include <cstdint>

#include "stats/random.h"

namespace ovelt {

struct PoissonState {
  float LastMean = -1.0f;        // mean of the cached values; -1 before the first call
  bool LargeMeanBranch = false;  // the cached values belong to the rejection method
  double g = 0.0;     // exp(-mean) below 12; mean ln(mean) - ln Gamma(mean + 1) from 12 on
  double sq = 0.0;    // sqrt(2 mean)
  double alxm = 0.0;  // ln(mean)
};

// A Poisson deviate of the given mean, an integer held in a double. Draws from `Ran` with the
// caller's seed and RandomState. A mean of 0 or below gives 0.
[[nodiscard]] double PoissonDeviate(double mean, int32_t& seed, RandomState& random,
                                    PoissonState& poisson);

// P(X = k) for a Poisson variable of mean x: exp(k ln x - x - ln k!). A mean of 0 gives 1 for
// k of 0 and 0 otherwise; a negative mean or k throws StatsError
// ("Invalid procedure call or argument"); k above 32767 throws StatsError ("Overflow").
[[nodiscard]] double PoissonProb(double x, int32_t k);

}  // namespace ovelt

#include "stats/poisson.h"

#include <cmath>

#include "stats/log_factorial.h"
#include "stats/log_gamma.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

constexpr double kPi = 3.1415926535;
constexpr double kLargeMean = 12.0;

// The cache is keyed on the branch as well as the mean, so that two means that round to the
// same float on either side of 12 never read each other's values.
bool NeedsRefresh(double mean, bool largeBranch, const PoissonState& state) {
  return static_cast<float>(mean) != state.LastMean || largeBranch != state.LargeMeanBranch;
}

// Multiplies uniform deviates until the product falls to exp(-mean) or below.
double ByProductOfUniforms(double mean, int32_t& seed, RandomState& random, PoissonState& state) {
  if (NeedsRefresh(mean, false, state)) {
    state.LastMean = static_cast<float>(mean);
    state.LargeMeanBranch = false;
    state.g = std::exp(-mean);
  }
  double em = -1.0;
  double t = 1.0;
  do {
    em += 1.0;
    t *= Ran(seed, random);
  } while (t > state.g);
  return em;
}

// Rejection method: a Lorentzian deviate y gives the candidate floor(sqrt(2 mean) y + mean),
// accepted with the ratio of the Poisson probability to the comparison function.
double ByRejection(double mean, int32_t& seed, RandomState& random, PoissonState& state) {
  if (NeedsRefresh(mean, true, state)) {
    state.LastMean = static_cast<float>(mean);
    state.LargeMeanBranch = true;
    state.sq = std::sqrt(2.0 * mean);
    state.alxm = std::log(mean);
    state.g = mean * state.alxm - LogGamma(mean + 1.0);
  }
  double em;
  double t;
  do {
    double y;
    do {
      y = std::tan(kPi * Ran(seed, random));
      em = state.sq * y + mean;
    } while (em < 0.0);
    em = std::floor(em);
    t = 0.9 * (1.0 + y * y) * std::exp(em * state.alxm - LogGamma(em + 1.0) - state.g);
  } while (Ran(seed, random) > t);
  return em;
}

}  // namespace

double PoissonDeviate(double mean, int32_t& seed, RandomState& random, PoissonState& poisson) {
  return mean < kLargeMean ? ByProductOfUniforms(mean, seed, random, poisson)
                           : ByRejection(mean, seed, random, poisson);
}

double PoissonProb(double x, int32_t k) {
  if (x < 0.0 || k < 0) throw StatsError(kInvalidArgumentText);
  if (x == 0.0) return k == 0 ? 1.0 : 0.0;
  const LogFactorialTable logFactorial(k);
  return std::exp(k * std::log(x) - x - logFactorial(k));
}

}  // namespace ovelt

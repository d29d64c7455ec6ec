#include "tools/hypergeometric_distribution.h"

#include <cmath>

#include "stats/log_factorial.h"

namespace ovelt {

DiscreteProbabilities HypergeometricProbabilities(int32_t population, int32_t successes, int32_t n,
                                                  int32_t k) {
  const LogFactorialTable lf(population);
  auto log_choose = [&lf](int32_t total, int32_t taken) {
    return lf(total) - lf(taken) - lf(total - taken);
  };
  const int32_t others = population - successes;
  auto probability = [&](int32_t i) {
    if (i < 0 || i > successes || n - i < 0 || n - i > others) return 0.0;
    return std::exp(log_choose(successes, i) + log_choose(others, n - i) -
                    log_choose(population, n));
  };

  DiscreteProbabilities r;
  for (int32_t i = 0; i < k; ++i) r.PLess += probability(i);
  r.PEqual = probability(k);
  const double share = static_cast<double>(successes) / population;
  r.Mean = n * share;
  r.Variance =
      population > 1 ? n * share * (1 - share) * (population - n) / (population - 1.0) : 0.0;
  return r;
}

}  // namespace ovelt

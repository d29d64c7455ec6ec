#include "tools/poisson_distribution.h"

#include <cmath>

#include "stats/log_factorial.h"

namespace ovelt {

DiscreteProbabilities PoissonProbabilities(double lambda, int32_t k) {
  const LogFactorialTable lf(k);
  const double log_lambda = std::log(lambda);
  auto probability = [&](int32_t i) { return std::exp(i * log_lambda - lambda - lf(i)); };

  DiscreteProbabilities r;
  for (int32_t i = 0; i < k; ++i) r.PLess += probability(i);
  r.PEqual = probability(k);
  r.Mean = lambda;
  r.Variance = lambda;
  return r;
}

}  // namespace ovelt

#include "tools/binomial_distribution.h"

#include <cmath>

#include "stats/log_factorial.h"

namespace ovelt {

DiscreteProbabilities BinomialProbabilities(double p, int32_t n, int32_t k) {
  const LogFactorialTable lf(n);
  const double log_p = std::log(p);
  const double log_q = std::log1p(-p);
  auto probability = [&](int32_t i) {
    return std::exp(lf(n) - lf(i) - lf(n - i) + i * log_p + (n - i) * log_q);
  };

  DiscreteProbabilities r;
  for (int32_t i = 0; i < k; ++i) r.PLess += probability(i);
  r.PEqual = probability(k);
  r.Mean = n * p;
  r.Variance = n * p * (1 - p);
  return r;
}

}  // namespace ovelt

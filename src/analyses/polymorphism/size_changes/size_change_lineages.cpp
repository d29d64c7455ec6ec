#include "analyses/polymorphism/size_changes/size_change_lineages.h"

#include <algorithm>
#include <cmath>

namespace ovelt {

namespace {

// Probabilities below this are taken as 0, so that the upper states drop out of the chain.
constexpr double kNegligible = 1e-300;
// The Poisson mean of one step: small enough that few terms are needed, large enough that the
// steps are few.
constexpr double kStepMean = 8.0;
constexpr double kPoissonTail = 1e-15;

double DeathRate(int32_t m) { return 0.5 * m * (m - 1.0); }

// One uniformized step of length h from `p`, states 1..top.
void Step(std::vector<double>& p, int32_t top, double h) {
  const double rate = DeathRate(top);
  const double mean = rate * h;
  std::vector<double> term(p.begin(), p.begin() + top + 1);
  std::vector<double> next(static_cast<size_t>(top) + 1, 0.0);
  double weight = std::exp(-mean);
  double covered = 0.0;
  const double last_term = mean + 10.0 * std::sqrt(mean) + 50.0;
  for (int j = 0; j <= last_term; ++j) {
    for (int32_t m = 1; m <= top; ++m)
      next[static_cast<size_t>(m)] += weight * term[static_cast<size_t>(m)];
    covered += weight;
    if (1.0 - covered < kPoissonTail) break;
    // term := K term, K = I + Q / rate: state m keeps 1 - rate(m) / rate and passes
    // rate(m) / rate to m - 1.
    for (int32_t m = 1; m <= top; ++m) {
      const double leave = DeathRate(m) / rate * term[static_cast<size_t>(m)];
      term[static_cast<size_t>(m)] -= leave;
      if (m > 1) term[static_cast<size_t>(m - 1)] += leave;
    }
    weight *= mean / (j + 1.0);
  }
  std::copy(next.begin(), next.end(), p.begin());
}

}  // namespace

std::vector<double> LineageDistribution(int32_t n, double t) {
  std::vector<double> p(static_cast<size_t>(std::max(n, 0)) + 1, 0.0);
  if (n < 1) return p;
  p[static_cast<size_t>(n)] = 1.0;
  int32_t top = n;
  double done = 0.0;
  while (done < t && top > 1) {
    const double h = std::min(t - done, kStepMean / DeathRate(top));
    Step(p, top, h);
    done += h;
    while (top > 1 && p[static_cast<size_t>(top)] < kNegligible) {
      p[static_cast<size_t>(top)] = 0.0;
      --top;
    }
  }
  return p;
}

double ExpectedLineages(int32_t n, double t) {
  double expected = 0.0;
  double ratio = 1.0;  // n[k] / n(k)
  for (int32_t k = 1; k <= n; ++k) {
    if (k > 1) ratio *= (n - k + 1.0) / (n + k - 1.0);
    expected += std::exp(-DeathRate(k) * t) * (2.0 * k - 1.0) * ratio;
  }
  return expected;
}

}  // namespace ovelt

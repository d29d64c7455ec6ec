#include "analyses/polymorphism/size_changes/mismatch_expected.h"

#include <cmath>

namespace ovelt {

double ConstantSizeMismatch(double theta, int32_t i) {
  if (theta <= 0.0) return i == 0 ? 1.0 : 0.0;
  return std::exp(i * std::log(theta) - (i + 1) * std::log(theta + 1.0));
}

float SizeChangeMismatch(double theta0, double theta1, double tau, int32_t i) {
  if (tau == 0.0) tau = kSmallestRate;
  if (theta0 == 0.0) theta0 = kSmallestRate;
  double value = ConstantSizeMismatch(theta1, i);
  if (theta1 > 0.0) {
    // Each term carries the decay factor inside its exponent, so that tau^j / j! cannot
    // overflow on its own when tau is large.
    const double decay = -tau * (theta1 + 1.0) / theta1;
    const double log_tau = std::log(tau);
    double log_factorial = 0.0;
    double sum = 0.0;
    for (int32_t j = 0; j <= i; ++j) {
      if (j > 1) log_factorial += std::log(static_cast<double>(j));
      const double weight = std::exp(j * log_tau - log_factorial + decay);
      sum += weight * (ConstantSizeMismatch(theta0, i - j) - ConstantSizeMismatch(theta1, i - j));
    }
    value += sum;
  }
  if (!std::isfinite(value)) throw ExpansionError();
  return static_cast<float>(value);
}

}  // namespace ovelt

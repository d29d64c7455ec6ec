#include "analyses/polymorphism/size_changes/size_change_segregating.h"

#include <cmath>

#include "stats/harmonic.h"

namespace ovelt {

double RecentTreeLength(int32_t n, double t) {
  if (n < 2 || t <= 0.0) return 0.0;
  double length = 0.0;
  double ratio = 1.0;  // n[k] / n(k)
  for (int32_t k = 2; k <= n; ++k) {
    ratio *= (n - k + 1.0) / (n + k - 1.0);
    if (ratio == 0.0) break;
    if (k % 2 != 0) continue;
    const double rate = 0.5 * k * (k - 1.0);
    length += 2.0 * (2.0 * k - 1.0) * ratio * -std::expm1(-rate * t) / rate;
  }
  return length;
}

double ExpectedSegregatingSites(int32_t n, double theta0, double theta1, double t) {
  if (n < 2) return 0.0;
  return theta0 * HarmonicA1Double(n) + (theta1 - theta0) * RecentTreeLength(n, t) / 2.0;
}

}  // namespace ovelt

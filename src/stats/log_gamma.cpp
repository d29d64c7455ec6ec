#include "stats/log_gamma.h"

#include <array>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {

double LogGamma(double x) {
  static constexpr std::array<double, 6> kCoefficients{76.18009173,  -86.50532033,  24.01409822,
                                                       -1.231739516, 0.00120858003, -0.00000536382};
  if (!(x > 0.0)) throw StatsError(kInvalidArgumentText);
  double y = x - 1.0;
  double tmp = y + 5.5;
  tmp = (y + 0.5) * std::log(tmp) - tmp;
  double ser = 1.0;
  for (double coefficient : kCoefficients) {
    y += 1.0;
    ser += coefficient / y;
  }
  return tmp + std::log(2.50662827465 * ser);
}

}  // namespace ovelt

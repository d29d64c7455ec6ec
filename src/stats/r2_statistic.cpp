#include "stats/r2_statistic.h"

#include <cmath>
#include <cstddef>

namespace ovelt {

double R2Statistic(const std::vector<double>& singletons, double k, int32_t seg_sites) {
  const auto n = static_cast<int32_t>(singletons.size()) - 1;
  if (seg_sites <= 0 || n <= 0) return 0.0;
  double sum = 0.0;
  for (int32_t i = 1; i <= n; ++i) {
    const double deviation = singletons[static_cast<std::size_t>(i)] - k / 2.0;
    sum += deviation * deviation;
  }
  return std::sqrt(sum / n) / seg_sites;
}

}  // namespace ovelt

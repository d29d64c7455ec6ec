#include "analyses/polymorphism/raggedness_statistic.h"

namespace ovelt {

double Raggedness(const MismatchDistribution& m) {
  if (m.Pairs == 0) return 0.0;
  const auto share = [&m](int32_t i) {
    if (i > m.MaxDiff) return 0.0;
    return static_cast<double>(m.Mismatch[static_cast<size_t>(i)]) /
           static_cast<double>(m.Pairs);
  };
  double r = 0.0;
  for (int32_t i = 1; i <= m.MaxDiff + 1; ++i) {
    const double step = share(i) - share(i - 1);
    r += step * step;
  }
  return r;
}

}  // namespace ovelt

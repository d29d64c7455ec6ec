#include "analyses/polymorphism/size_changes/mismatch_mae.h"

#include <cmath>

#include "analyses/polymorphism/size_changes/mismatch_expected.h"

namespace ovelt {

double MeanAbsoluteError(const MismatchDistribution& m, double k) {
  if (m.Pairs == 0) return 0.0;
  const auto share = [&m](int32_t i) {
    return static_cast<double>(m.Mismatch[static_cast<size_t>(i)]) /
           static_cast<double>(m.Pairs);
  };
  double mae = 0.0;
  double expected_below = 0.0;
  for (int32_t i = 0; i < m.MaxDiff; ++i) {
    const double expected = ConstantSizeMismatch(k, i);
    expected_below += expected;
    mae += std::fabs(share(i) - expected);
  }
  return mae + std::fabs(share(m.MaxDiff) - (1.0 - expected_below));
}

}  // namespace ovelt

#include "analyses/polymorphism/size_changes/mismatch_distribution.h"

#include "analyses/polymorphism/common/pairwise_counts.h"

namespace ovelt {

MismatchDistribution ComputeMismatch(const Selection& sel, int32_t from, int32_t to,
                                     const PolyGauge& gauge) {
  MismatchDistribution m;
  const int32_t n = sel.SelOutCount;
  m.Mismatch.assign(1, 0);
  if (n < 2) return m;
  // Monomorphic sites add no difference and gap sites are skipped, so the pairwise counts over
  // the sites of class 1 to 4 are the differences over the whole region.
  const PairCounts d = PairwiseDifferences(sel, from, to, gauge);
  for (int32_t i = 1; i < n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      const auto diffs = static_cast<size_t>(d.at(i, j));
      if (diffs >= m.Mismatch.size()) m.Mismatch.resize(diffs + 1, 0);
      ++m.Mismatch[diffs];
    }
  }
  m.MaxDiff = static_cast<int32_t>(m.Mismatch.size()) - 1;
  m.Pairs = static_cast<int64_t>(n) * (n - 1) / 2;
  RaiseTo(gauge, 100);
  return m;
}

double MismatchVariance(const MismatchDistribution& m, double k) {
  if (m.Pairs <= 1) return 0.0;
  double sum = 0.0;
  for (size_t i = 0; i < m.Mismatch.size(); ++i) {
    const double deviation = static_cast<double>(i) - k;
    sum += static_cast<double>(m.Mismatch[i]) * deviation * deviation;
  }
  return sum / static_cast<double>(m.Pairs - 1);
}

double MismatchMean(const MismatchDistribution& m) {
  if (m.Pairs == 0) return 0.0;
  double sum = 0.0;
  for (size_t i = 0; i < m.Mismatch.size(); ++i)
    sum += static_cast<double>(i) * static_cast<double>(m.Mismatch[i]);
  return sum / static_cast<double>(m.Pairs);
}

}  // namespace ovelt

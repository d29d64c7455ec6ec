#include "analyses/polymorphism/size_changes/size_change_frequencies.h"

#include <array>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/polymorphic_sites.h"
#include "analyses/polymorphism/size_changes/size_change_lineages.h"

namespace ovelt {

std::vector<double> ObservedFoldedSpectrum(const Selection& sel, int32_t from, int32_t to) {
  const int32_t n = sel.SelOutCount;
  std::vector<double> folded(static_cast<size_t>(n > 1 ? n / 2 : 0) + 1, 0.0);
  if (n < 2) return folded;
  ForEachColumn(sel, PolymorphicSites(sel, from, to), [&](int32_t, const uint8_t* codes) {
    std::array<int32_t, 5> count{};
    for (int32_t s = 0; s < n; ++s) ++count[codes[s]];
    size_t common = 0;
    for (size_t c = 1; c < 4; ++c)
      if (count[c] > count[common]) common = c;
    for (size_t c = 0; c < 4; ++c) {
      if (c == common || count[c] == 0) continue;
      const int32_t i = count[c] <= n - count[c] ? count[c] : n - count[c];
      folded[static_cast<size_t>(i)] += 1.0;
    }
  });
  return folded;
}

std::vector<double> ExpectedSpectrum(int32_t n, double theta0, double theta1, double t) {
  std::vector<double> xi(static_cast<size_t>(n > 1 ? n : 1), 0.0);
  if (n < 2) return xi;
  if (theta0 == theta1 || t <= 0.0) {
    const double theta = t <= 0.0 ? theta0 : theta1;
    for (int32_t i = 1; i < n; ++i) xi[static_cast<size_t>(i)] = theta / i;
    return xi;
  }
  // P(A_n(t) >= k), summed down from the top.
  const std::vector<double> lineages = LineageDistribution(n, t);
  std::vector<double> at_least(static_cast<size_t>(n) + 2, 0.0);
  for (int32_t m = n; m >= 1; --m)
    at_least[static_cast<size_t>(m)] =
        at_least[static_cast<size_t>(m) + 1] + lineages[static_cast<size_t>(m)];
  std::vector<double> mutations(static_cast<size_t>(n) + 1, 0.0);  // k W(k)
  for (int32_t k = 2; k <= n; ++k) {
    const double g =
        at_least[static_cast<size_t>(k)] > 1.0 ? 1.0 : at_least[static_cast<size_t>(k)];
    mutations[static_cast<size_t>(k)] = (theta1 + (theta0 - theta1) * g) / (k - 1.0);
  }
  for (int32_t i = 1; i < n; ++i) {
    // p(k) = C(n - i - 1, k - 2) / C(n - 1, k - 1), from p(2) = 1 / (n - 1) by the ratio of
    // neighbours p(k + 1) / p(k) = (n - i - k + 1) k / ((k - 1) (n - k)).
    double p = 1.0 / (n - 1.0);
    double sum = 0.0;
    for (int32_t k = 2; k <= n - i + 1; ++k) {
      sum += mutations[static_cast<size_t>(k)] * p;
      if (k < n) p *= (n - i - k + 1.0) * k / ((k - 1.0) * (n - k));
    }
    xi[static_cast<size_t>(i)] = sum;
  }
  return xi;
}

std::vector<double> FoldSpectrum(const std::vector<double>& unfolded, int32_t n) {
  std::vector<double> folded(static_cast<size_t>(n > 1 ? n / 2 : 0) + 1, 0.0);
  for (int32_t i = 1; i < n && static_cast<size_t>(i) < unfolded.size(); ++i) {
    const int32_t f = i <= n - i ? i : n - i;
    folded[static_cast<size_t>(f)] += unfolded[static_cast<size_t>(i)];
  }
  return folded;
}

std::vector<double> SpectrumShares(const std::vector<double>& counts) {
  double total = 0.0;
  for (size_t i = 1; i < counts.size(); ++i) total += counts[i];
  std::vector<double> shares(counts.size(), 0.0);
  if (total <= 0.0) return shares;
  for (size_t i = 1; i < counts.size(); ++i) shares[i] = counts[i] / total;
  return shares;
}

}  // namespace ovelt

#include "analyses/polymorphism/diversity/pi_jukes_cantor.h"

#include <cmath>

namespace ovelt {

std::optional<double> PiJukesCantor(const PairCounts& d, int32_t net_sites,
                                    const PolyGauge& gauge) {
  const int32_t n = d.n();
  double sum = 0.0;
  int64_t usable = 0;
  for (int32_t i = 1; i < n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      const double x = 4.0 * static_cast<double>(d.at(i, j)) / (3.0 * net_sites);
      if (x < 1.0) {
        sum += -0.75 * std::log(1.0 - x);
        ++usable;
      }
    }
    RaiseTo(gauge, static_cast<int>(static_cast<double>(i) / (n - 1) * 100.0));
  }
  if (usable == 0) return std::nullopt;
  return sum / static_cast<double>(usable);
}

std::optional<double> PiJukesCantor(const Selection& sel, int32_t from, int32_t to,
                                    int32_t net_sites, const PolyGauge& gauge) {
  return PiJukesCantor(PairwiseDifferences(sel, from, to), net_sites, gauge);
}

}  // namespace ovelt

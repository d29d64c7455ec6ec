#include "stats/raggedness.h"

#include <cstddef>

namespace ovelt {

namespace {

template <typename Count>
double RaggednessOf(std::span<const Count> pair_counts, int64_t pairs) {
  if (pairs <= 0 || pair_counts.empty()) return 0.0;
  const auto total = static_cast<double>(pairs);
  double r = 0.0;
  double previous = static_cast<double>(pair_counts[0]) / total;
  for (std::size_t i = 1; i < pair_counts.size(); ++i) {
    const double share = static_cast<double>(pair_counts[i]) / total;
    const double step = share - previous;
    r += step * step;
    previous = share;
  }
  // The class after the last one is empty: its step down is x(d).
  return r + previous * previous;
}

}  // namespace

double RaggednessFromHistogram(std::span<const int64_t> pair_counts, int64_t pairs) {
  return RaggednessOf(pair_counts, pairs);
}

double RaggednessFromHistogram(std::span<const int32_t> pair_counts, int64_t pairs) {
  return RaggednessOf(pair_counts, pairs);
}

}  // namespace ovelt

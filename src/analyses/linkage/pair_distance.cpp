#include "analyses/linkage/pair_distance.h"

#include <cmath>
#include <cstddef>

namespace ovelt {

PairDistance::PairDistance(const SeqMatrix& matrix, int32_t n,
                           const std::vector<int16_t>& site_class, int32_t from, int32_t to)
    : from_(from), n_(n) {
  missing_.assign(static_cast<std::size_t>(to - from + 2), 0);
  for (int32_t site = from; site <= to; ++site) {
    const auto s = static_cast<std::size_t>(site);
    int64_t cells = 0;
    if (s < site_class.size() && site_class[s] == 5) {
      for (int32_t seq = 1; seq <= n; ++seq) {
        const char c = matrix.at(site, seq);
        if (c == '-' || c == '?') ++cells;
      }
    }
    const auto k = static_cast<std::size_t>(site - from);
    missing_[k + 1] = missing_[k] + cells;
  }
}

int32_t PairDistance::operator()(int32_t i, int32_t j) const {
  const int64_t cells = missing_[static_cast<std::size_t>(j - from_ + 1)] -
                        missing_[static_cast<std::size_t>(i - from_)];
  const double dist = static_cast<double>(j - i) - static_cast<double>(cells) / n_;
  // The default rounding mode rounds a half to the even integer.
  return static_cast<int32_t>(std::nearbyint(dist));
}

}  // namespace ovelt

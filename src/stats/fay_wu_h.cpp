#include "stats/fay_wu_h.h"

#include <cstddef>

namespace ovelt {

FayWuResult FayWuH(const std::vector<int32_t>& spectrum, int32_t n) {
  FayWuResult r;
  if (n < 2) return r;
  const double pairs = static_cast<double>(n) * (n - 1);
  for (int32_t i = 1; i < n && static_cast<size_t>(i) < spectrum.size(); ++i) {
    const double s = spectrum[static_cast<size_t>(i)];
    r.ThetaH += 2.0 * s * i * i / pairs;
    r.ThetaPi += 2.0 * s * i * (n - i) / pairs;
  }
  r.H = r.ThetaPi - r.ThetaH;
  return r;
}

}  // namespace ovelt

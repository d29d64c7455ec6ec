#include "analyses/recombination/kij_variance.h"

#include <cstddef>

namespace ovelt {

float KijVariance(const Selection& sel, const std::vector<int32_t>& sites, float k_prime,
                  const std::function<void(int)>& gauge) {
  const int32_t n = sel.SelCount1;
  const std::size_t width = sites.size();
  // The polymorphic cells of each sequence side by side, so that a pair is compared along two
  // short contiguous rows.
  std::vector<char> rows(width * static_cast<std::size_t>(n));
  for (int32_t q = 1; q <= n; ++q) {
    const char* cells = sel.SelMatrix1.sequence(q);
    char* row = rows.data() + width * static_cast<std::size_t>(q - 1);
    for (std::size_t s = 0; s < width; ++s) row[s] = cells[sites[s] - 1];
  }
  const double mean = static_cast<double>(k_prime);
  double t = 0.0;
  for (int32_t i = 1; i <= n; ++i) {
    const char* a = rows.data() + width * static_cast<std::size_t>(i - 1);
    for (int32_t j = i + 1; j <= n; ++j) {
      const char* b = rows.data() + width * static_cast<std::size_t>(j - 1);
      int32_t k = 0;
      for (std::size_t s = 0; s < width; ++s) k += a[s] != b[s] ? 1 : 0;
      const double dev = static_cast<double>(k) - mean;
      t += dev * dev;
    }
    if (gauge) gauge(30 * i / n);
  }
  const double nn = static_cast<double>(n);
  return static_cast<float>((2.0 * t + nn * mean * mean) / (nn * nn));
}

}  // namespace ovelt

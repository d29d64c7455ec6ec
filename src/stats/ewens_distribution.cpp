#include "stats/ewens_distribution.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace ovelt {

std::vector<Decimal36> EwensProbabilities(int32_t n, int32_t max_haplotypes, double theta) {
  if (n < 1 || max_haplotypes < 1 || max_haplotypes > n || !(theta > 0.0) ||
      !std::isfinite(theta)) {
    throw std::invalid_argument("EwensProbabilities: needs n >= 1, 1 <= h <= n and theta > 0");
  }
  const Decimal36 t = Decimal36::FromDouble(theta);
  // Row m of the table, kept in place: entry j of row m - 1 is read before it is overwritten,
  // walking j downwards. Entries beyond m are 0, which gives the end values of each row,
  // P(m, 1) = (m - 1)! / ((theta + 1) ... (theta + m - 1)) and
  // P(m, m) = theta^(m - 1) / ((theta + 1) ... (theta + m - 1)).
  std::vector<Decimal36> row(static_cast<size_t>(max_haplotypes) + 1);
  row[1] = Decimal36::FromInteger(1);
  for (int32_t m = 2; m <= n; ++m) {
    const Decimal36 previous = Decimal36::FromInteger(m - 1);
    const Decimal36 denominator = t + previous;
    const Decimal36 stay = previous / denominator;  // the new sequence joins a haplotype
    const Decimal36 found = t / denominator;        // the new sequence founds a haplotype
    for (int32_t j = std::min(m, max_haplotypes); j >= 1; --j) {
      const auto k = static_cast<size_t>(j);
      row[k] = row[k] * stay + row[k - 1] * found;
    }
  }
  return row;
}

}  // namespace ovelt

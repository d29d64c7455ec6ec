#include "analyses/linkage/pair_fisher.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "stats/log_factorial.h"
#include "stats/stats_error.h"

namespace ovelt {

PairFisher::PairFisher(int32_t n) {
  const LogFactorialTable table(n);
  lf_.resize(static_cast<std::size_t>(n) + 1);
  for (int32_t i = 0; i <= n; ++i) lf_[static_cast<std::size_t>(i)] = table(i);
}

float PairFisher::TwoTailed(int32_t a32, int32_t b32, int32_t c32, int32_t d32) const {
  const int64_t a = a32, b = b32, c = c32, d = d32;
  const int64_t n = a + b + c + d;
  if (a < 0 || b < 0 || c < 0 || d < 0 || n >= static_cast<int64_t>(lf_.size()))
    throw StatsError(kFisherExactFailureText);
  const bool negative_association = a * d < b * c;
  int64_t steps;
  if (negative_association) {
    steps = std::min(a, d);
  } else if (b >= c) {
    steps = -c;
  } else {
    steps = -b;
  }
  const int64_t sign = steps > 0 ? 1 : (steps < 0 ? -1 : 0);
  const double k = Lf(a + c) + Lf(b + d) + Lf(a + b) + Lf(c + d);

  double p1 = 0.0;
  for (int64_t i = 1; i <= std::llabs(steps) + 1; ++i) {
    const int64_t m = (i - 1) * sign;
    const double term = std::exp(k - Lf(a - m) - Lf(b + m) - Lf(c + m) - Lf(d - m) - Lf(n));
    if (term < p1 * 0x1p-54) break;  // below half an ulp of p1, and the rest smaller still
    p1 += term;
  }

  // The far extreme of the other direction and the move inward, as in FisherExact.
  int64_t ta, tb, tc, td, inward;
  if (negative_association) {
    if (b < c) {
      ta = a + b; tb = 0; tc = c - b; td = d + b;
    } else {
      ta = a + c; tb = b - c; tc = 0; td = d + c;
    }
    inward = -1;
  } else {
    if (a < d) {
      ta = 0; tb = a + b; tc = a + c; td = d - a;
    } else {
      ta = a - d; tb = d + b; tc = d + c; td = 0;
    }
    inward = 1;
  }
  // Moves possible before a cell falls below 0.
  const int64_t last = inward < 0 ? std::min(ta, td) : std::min(tb, tc);
  auto log_term = [&](int64_t s) {
    const int64_t step = s * inward;
    return k - Lf(ta + step) - Lf(tb - step) - Lf(tc - step) - Lf(td + step) - Lf(n);
  };
  const double threshold = std::log(p1) - 60.0 * std::log(2.0);
  // First move at which the term reaches the threshold or has passed the mode.
  int64_t low = 0, high = last;
  while (low < high) {
    const int64_t mid = low + (high - low) / 2;
    const double here = log_term(mid);
    if (here >= threshold || log_term(mid + 1) < here) {
      high = mid;
    } else {
      low = mid + 1;
    }
  }

  double p2 = 0.0;
  for (int64_t s = low; s <= last; ++s) {
    const double p = std::exp(log_term(s));
    // Equal sums up to rounding still count as not exceeding the first tail.
    if (p2 + p > p1 && std::fabs(p2 + p - p1) >= 1e-13) break;
    p2 += p;
  }
  return static_cast<float>(std::min(p1 + p2, 1.0));
}

}  // namespace ovelt

#include "stats/fisher_exact.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "stats/fisher_tails.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

double TwoTails(int64_t a, int64_t b, int64_t c, int64_t d, double& oneTail,
                const LogFactorialTable& lf) {
  const int64_t n = a + b + c + d;
  const FisherTails tails = FisherTailsOf(a, b, c, d);
  const int64_t sign = tails.Steps > 0 ? 1 : (tails.Steps < 0 ? -1 : 0);

  const double k = lf(a + c) + lf(b + d) + lf(a + b) + lf(c + d);

  double p1 = 0.0;
  for (int64_t i = 1; i <= std::llabs(tails.Steps) + 1; ++i) {
    const int64_t m = (i - 1) * sign;
    p1 += std::exp(k - lf(a - m) - lf(b + m) - lf(c + m) - lf(d - m) - lf(n));
  }
  oneTail = p1;

  double p2 = 0.0;
  for (int64_t s = 0; s <= tails.FarMoves; ++s) {
    const int64_t step = s * tails.Inward;
    const FisherTable& t = tails.Far;
    const double p =
        std::exp(k - lf(t.a + step) - lf(t.b - step) - lf(t.c - step) - lf(t.d + step) - lf(n));
    // Equal sums up to rounding still count as not exceeding the first tail.
    if (p2 + p > p1 && std::fabs(p2 + p - p1) >= 1e-13) break;
    p2 += p;
  }

  return std::min(p1 + p2, 1.0);
}

}  // namespace

float FisherExact(int32_t a, int32_t b, int32_t c, int32_t d, double& oneTail,
                  const LogFactorialTable& logFactorial) {
  try {
    if (a < 0 || b < 0 || c < 0 || d < 0) throw StatsError(kSubscriptOutOfRangeText);
    return static_cast<float>(TwoTails(a, b, c, d, oneTail, logFactorial));
  } catch (const StatsError&) {
    throw StatsError(kFisherExactFailureText);
  }
}

}  // namespace ovelt

#include "stats/fisher_exact.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// A table of the same margins as the observed one; `step` moves it one table along the
// diagonal (a and d change by `step`, b and c by -`step`).
struct Table {
  int64_t a, b, c, d;
  void Move(int64_t step) {
    a += step;
    d += step;
    b -= step;
    c -= step;
  }
  [[nodiscard]] bool HasNegativeCell() const { return a < 0 || b < 0 || c < 0 || d < 0; }
};

double TwoTails(int64_t a, int64_t b, int64_t c, int64_t d, double& oneTail,
                const LogFactorialTable& lf) {
  const int64_t n = a + b + c + d;
  const bool negativeAssociation = a * d < b * c;

  // Steps from the observed table to the extreme of its own direction; a positive count moves
  // towards smaller a and d.
  int64_t steps;
  if (negativeAssociation) {
    steps = std::min(a, d);
  } else if (b >= c) {
    steps = -c;
  } else {
    steps = -b;
  }
  const int64_t sign = steps > 0 ? 1 : (steps < 0 ? -1 : 0);

  const double k = lf(a + c) + lf(b + d) + lf(a + b) + lf(c + d);

  double p1 = 0.0;
  for (int64_t i = 1; i <= std::llabs(steps) + 1; ++i) {
    const int64_t m = (i - 1) * sign;
    p1 += std::exp(k - lf(a - m) - lf(b + m) - lf(c + m) - lf(d - m) - lf(n));
  }
  oneTail = p1;

  // The far extreme of the other direction, and the move that walks back inward.
  Table t{};
  int64_t inward;
  if (negativeAssociation) {
    t = b < c ? Table{a + b, 0, c - b, d + b} : Table{a + c, b - c, 0, d + c};
    inward = -1;
  } else {
    t = a < d ? Table{0, a + b, a + c, d - a} : Table{a - d, d + b, d + c, 0};
    inward = 1;
  }

  double p2 = 0.0;
  for (;;) {
    const double p = std::exp(k - lf(t.a) - lf(t.b) - lf(t.c) - lf(t.d) - lf(n));
    // Equal sums up to rounding still count as not exceeding the first tail.
    if (p2 + p > p1 && std::fabs(p2 + p - p1) >= 1e-13) break;
    p2 += p;
    t.Move(inward);
    if (t.HasNegativeCell()) break;
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

#include "tools/independence_g.h"

#include <cmath>

#include "stats/g_test.h"

namespace ovelt {
namespace {

double XLogX(double x) { return x > 0 ? x * std::log(x) : 0.0; }

}  // namespace

float TableGTest(const TwoByTwoTable& t, double& williams) {
  if (t.a > 0 && t.b > 0 && t.c > 0 && t.d > 0) return GTest(t.a, t.b, t.c, t.d, williams);

  // The same sums as the primitive, an empty cell counting 0.
  const double a = t.a, b = t.b, c = t.c, d = t.d;
  const double n = a + b + c + d;
  const double g = 2.0 * (XLogX(a) + XLogX(b) + XLogX(c) + XLogX(d) + XLogX(n) - XLogX(a + b) -
                          XLogX(a + c) - XLogX(b + d) - XLogX(c + d));
  const double q =
      (n / (a + b) + n / (c + d) - 1.0) * (n / (a + c) + n / (b + d) - 1.0) / (6.0 * n) + 1.0;
  williams = g / q;
  return static_cast<float>(g);
}

MovedCells YatesMovedCells(const TwoByTwoTable& t) {
  const int64_t cross = static_cast<int64_t>(t.a) * t.d - static_cast<int64_t>(t.b) * t.c;
  const float shift = cross < 0 ? 0.5f : -0.5f;
  return {static_cast<float>(t.a) + shift, static_cast<float>(t.b) - shift,
          static_cast<float>(t.c) - shift, static_cast<float>(t.d) + shift};
}

float YatesGTest(const TwoByTwoTable& table) {
  const MovedCells m = YatesMovedCells(table);
  return GTestFloat(m.a, m.b, m.c, m.d);
}

}  // namespace ovelt

#include "stats/g_test.h"

#include <algorithm>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

double XLogX(double x) {
  if (!(x > 0.0)) throw StatsError(kInvalidArgumentText);
  return x * std::log(x);
}

double G(double a, double b, double c, double d) {
  const double n = a + b + c + d;
  return 2.0 * (XLogX(a) + XLogX(b) + XLogX(c) + XLogX(d) + XLogX(n) - XLogX(a + b) - XLogX(a + c) -
                XLogX(b + d) - XLogX(c + d));
}

}  // namespace

float GTest(int32_t a, int32_t b, int32_t c, int32_t d, double& adjusted) {
  // G is never negative; a table of independent cells can round to a hair below zero.
  const double g = std::max(G(a, b, c, d), 0.0);
  const double n = static_cast<double>(a) + b + c + d;
  const double q = (n / (static_cast<double>(a) + b) + n / (static_cast<double>(c) + d) - 1.0) *
                       (n / (static_cast<double>(a) + c) + n / (static_cast<double>(b) + d) - 1.0) /
                       (6.0 * n) +
                   1.0;
  adjusted = g / q;
  return static_cast<float>(g);
}

float GTestFloat(float a, float b, float c, float d) {
  return static_cast<float>(std::max(G(a, b, c, d), 0.0));
}

}  // namespace ovelt

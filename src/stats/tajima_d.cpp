#include "stats/tajima_d.h"

#include <cmath>
#include <limits>

#include "stats/harmonic.h"

namespace ovelt {

double HarmonicA2Double(int32_t n) {
  double sum = 0.0;
  for (int32_t i = 1; i < n; ++i) sum += 1.0 / (static_cast<double>(i) * i);
  return sum;
}

TajimaCoefficients TajimaCoefficientsFor(int32_t n) {
  TajimaCoefficients c;
  const auto nd = static_cast<double>(n);
  c.a1 = HarmonicA1Double(n);
  c.a2 = HarmonicA2Double(n);
  c.b1 = (nd + 1.0) / (3.0 * (nd - 1.0));
  c.b2 = 2.0 * (nd * nd + nd + 3.0) / (9.0 * nd * (nd - 1.0));
  c.c1 = c.b1 - 1.0 / c.a1;
  c.c2 = c.b2 - (nd + 2.0) / (nd * c.a1) + c.a2 / (c.a1 * c.a1);
  c.e1 = c.c1 / c.a1;
  c.e2 = c.c2 / (c.a1 * c.a1 + c.a2);
  return c;
}

double TajimaD(double k, double s, double a1, double e1, double e2) {
  if (s <= 0.0) return std::numeric_limits<double>::quiet_NaN();
  return (k - s / a1) / std::sqrt(e1 * s + e2 * s * (s - 1.0));
}

double TajimaDFromCounts(int32_t n, double k, double s) {
  const TajimaCoefficients c = TajimaCoefficientsFor(n);
  return TajimaD(k, s, c.a1, c.e1, c.e2);
}

}  // namespace ovelt

#include "stats/fu_li_statistics.h"

#include <cmath>
#include <limits>

#include "stats/harmonic.h"
#include "stats/tajima_d.h"

namespace ovelt {
namespace {

// A variance constant that cancels to rounding noise is taken as 0.
constexpr double kZeroVariance = 1e-12;

double ZeroIfNoise(double v) {
  return std::fabs(v) < kZeroVariance ? 0.0 : v;
}

double Scaled(double numerator, double eta, double u, double v) {
  if (eta <= 0.0) return std::numeric_limits<double>::quiet_NaN();
  return numerator / std::sqrt(u * eta + v * eta * eta);
}

}  // namespace

FuLiCoefficients FuLiStarCoefficients(int32_t n) {
  FuLiCoefficients c;
  const auto nd = static_cast<double>(n);
  c.a1 = HarmonicA1Double(n);
  c.a2 = HarmonicA2Double(n);
  const double a1 = c.a1, a2 = c.a2;
  const double a_next = a1 + 1.0 / nd;  // a(n + 1)
  c.vD = (a2 / (a1 * a1) - (2.0 / nd) * (1.0 + 1.0 / a1 - a1 + a1 / nd) - 1.0 / (nd * nd)) /
         (a1 * a1 + a2);
  c.vD = ZeroIfNoise(c.vD);
  c.uD = ((nd - 1.0) / nd - 1.0 / a1) / a1 - c.vD;
  c.vF =
      ((2.0 * nd * nd * nd + 110.0 * nd * nd - 255.0 * nd + 153.0) / (9.0 * nd * nd * (nd - 1.0)) +
       2.0 * (nd - 1.0) * a1 / (nd * nd) - 8.0 * a2 / nd) /
      (a1 * a1 + a2);
  c.uF =
      ((4.0 * nd * nd + 19.0 * nd + 3.0 - 12.0 * (nd + 1.0) * a_next) / (3.0 * nd * (nd - 1.0))) /
          a1 -
      c.vF;
  return c;
}

FuLiCoefficients FuLiOutgroupCoefficients(int32_t n) {
  FuLiCoefficients c;
  const auto nd = static_cast<double>(n);
  c.a1 = HarmonicA1Double(n);
  c.a2 = HarmonicA2Double(n);
  const double a1 = c.a1, a2 = c.a2;
  const double a_next = a1 + 1.0 / nd;
  const double cn = 2.0 * (nd * a1 - 2.0 * (nd - 1.0)) / ((nd - 2.0) * (nd - 1.0));
  c.vD = 1.0 + (a1 * a1 / (a2 + a1 * a1)) * (cn - (nd + 1.0) / (nd - 1.0));
  c.vD = ZeroIfNoise(c.vD);
  c.uD = a1 - 1.0 - c.vD;
  c.vF = (cn + 2.0 * (nd * nd + nd + 3.0) / (9.0 * nd * (nd - 1.0)) - 2.0 / (nd - 1.0)) /
         (a1 * a1 + a2);
  c.uF = (1.0 + (nd + 1.0) / (3.0 * (nd - 1.0)) -
          4.0 * (nd + 1.0) / ((nd - 1.0) * (nd - 1.0)) * (a_next - 2.0 * nd / (nd + 1.0))) /
             a1 -
         c.vF;
  return c;
}

double FuLiDStarValue(double eta, double eta_s, double a1, double u, double v, int32_t n) {
  const auto nd = static_cast<double>(n);
  return Scaled(eta / a1 - eta_s * (nd - 1.0) / nd, eta, u, v);
}

double FuLiFStarValue(double k, double eta, double eta_s, double u, double v, int32_t n) {
  const auto nd = static_cast<double>(n);
  return Scaled(k - eta_s * (nd - 1.0) / nd, eta, u, v);
}

double FuLiDValue(double eta, double eta_e, double a1, double u, double v) {
  return Scaled(eta - a1 * eta_e, eta, u, v);
}

double FuLiFValue(double k, double eta, double eta_e, double u, double v) {
  return Scaled(k - eta_e, eta, u, v);
}

FuLiPair FuLiStarFromCounts(int32_t n, double eta, double eta_s, double k) {
  const FuLiCoefficients c = FuLiStarCoefficients(n);
  return {FuLiDStarValue(eta, eta_s, c.a1, c.uD, c.vD, n),
          FuLiFStarValue(k, eta, eta_s, c.uF, c.vF, n)};
}

FuLiPair FuLiOutgroupFromCounts(int32_t n, double eta, double eta_e, double k) {
  const FuLiCoefficients c = FuLiOutgroupCoefficients(n);
  return {FuLiDValue(eta, eta_e, c.a1, c.uD, c.vD), FuLiFValue(k, eta, eta_e, c.uF, c.vF)};
}

}  // namespace ovelt

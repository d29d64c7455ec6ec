#include "analyses/recombination/hudson_g.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

// g(C, n) written out another way: the logarithm of L as two inverse hyperbolic tangents,
// ln((13 + s) / (13 - s)) = 2 atanh(s / 13) and ln((13 + 2C - s) / (13 + 2C + s)) =
// -2 atanh(s / (13 + 2C)); M through log1p; the four terms as a polynomial in 1/n.
double SecondForm(double c, double n) {
  const double s = std::sqrt(97.0);
  const double l = 2.0 * (std::atanh(s / 13.0) - std::atanh(s / (13.0 + 2.0 * c))) / s;
  const double m = 0.5 * std::log1p(c * (c + 13.0) / 18.0) - 6.5 * l;
  const double t0 = (c - 1.0) * m - c + 14.0 * c * l + 18.0 * l;
  const double t1 = 0.5 * c * c + c + 2.0 * m - c * m - 18.0 * c * l - 18.0 * l;
  const double t2 = -0.5 * c * c + 2.0 * c - 2.0 * c * m - 18.0 * m - 8.0 * c * l - 36.0 * l;
  const double t3 = -2.0 * c + 2.0 * c * m + 14.0 * m + 12.0 * c * l + 36.0 * l;
  const double x = 1.0 / n;
  return 2.0 * (t0 + x * (t1 + x * (t2 + x * t3))) / (c * c);
}

TEST(HudsonG, AgreesWithTheSecondForm) {
  for (const double c : {0.001, 0.05, 0.5, 1.0, 7.3, 100.0, 2500.0, 10001.0})
    for (const int n : {2, 4, 10, 50, 500})
      EXPECT_NEAR(HudsonG(c, n), SecondForm(c, n), 1e-7 * SecondForm(c, n)) << c << " " << n;
}

// Values taken with 40-digit arithmetic on the published formula.
TEST(HudsonG, KnownValues) {
  EXPECT_NEAR(HudsonG(1.0, 10), 0.64078159060918237, 1e-12);
  EXPECT_NEAR(HudsonG(0.5, 4), 0.61640544179409508, 1e-12);
  EXPECT_NEAR(HudsonG(100.0, 50), 0.091297257797932129, 1e-13);
  EXPECT_NEAR(HudsonG(10001.0, 2), 0.25045351876785473, 1e-12);
  // Near 0 the terms cancel before the division by C^2: a few digits are lost.
  EXPECT_NEAR(HudsonG(0.001, 4), 0.65615936195996106, 1e-8);
}

TEST(HudsonG, FallsAsCGrows) {
  double last = HudsonG(0.001, 20);
  for (double c = 0.01; c < 10000.0; c *= 1.7) {
    const double next = HudsonG(c, 20);
    EXPECT_LT(next, last) << c;
    last = next;
  }
}

TEST(HudsonG, NotFiniteOutsideItsDomain) {
  EXPECT_FALSE(std::isfinite(HudsonG(0.0, 10)));
}

}  // namespace
}  // namespace ovelt

#include "stats/jukes_cantor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

TEST(JukesCantor, ThreeQuartersIsSaturated) {
  double p = 0.75;
  EXPECT_EQ(JukesCantor(p), 5.0);
  EXPECT_EQ(p, 1.0);  // the argument becomes 4p/3
}

TEST(JukesCantor, BeyondSaturation) {
  double p = 0.9;
  EXPECT_EQ(JukesCantor(p), 5.0);
  EXPECT_DOUBLE_EQ(p, 1.2);
}

TEST(JukesCantor, InvertsTheExpectedProportionOfTheModel) {
  // Under the model the proportion of differing sites after distance d is
  // p = (3/4)(1 - exp(-4d/3)).
  for (double d : {0.001, 0.05, 0.2, 0.8, 2.0}) {
    double p = 0.75 * (1.0 - std::exp(-4.0 * d / 3.0));
    const double original = p;
    EXPECT_NEAR(JukesCantor(p), d, 1e-12 * (1.0 + d)) << d;
    EXPECT_DOUBLE_EQ(p, 4.0 * original / 3.0);
  }
}

TEST(JukesCantor, ByHand) {
  // p = 0.3: x = 0.4, d = -(3/4) ln 0.6.
  double p = 0.3;
  EXPECT_NEAR(JukesCantor(p), 0.383119, 1e-6);
}

TEST(JukesCantor, NoDifferencesIsPlusZero) {
  double p = 0.0;
  const double d = JukesCantor(p);
  EXPECT_EQ(d, 0.0);
  EXPECT_FALSE(std::signbit(d));
}

}  // namespace
}  // namespace ovelt

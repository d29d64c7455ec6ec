#include "stats/harmonic.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

TEST(HarmonicA1, SampleOfOneHasNoTerms) {
  EXPECT_EQ(HarmonicA1(1), 0.0f);
  EXPECT_EQ(HarmonicA1Double(1), 0.0);
  EXPECT_EQ(HarmonicA1Double(0), 0.0);
}

TEST(HarmonicA1, SmallSamplesByHand) {
  EXPECT_EQ(HarmonicA1Double(2), 1.0);
  EXPECT_EQ(HarmonicA1(2), 1.0f);
  // 1 + 1/2 + 1/3 = 11/6.
  EXPECT_NEAR(HarmonicA1Double(4), 11.0 / 6.0, 1e-15);
  EXPECT_EQ(HarmonicA1(4), static_cast<float>(11.0 / 6.0));
}

TEST(HarmonicA1, FloatIsTheDoubleRoundedOnce) {
  // 11/6 has no exact float: the float result differs from the double one by the rounding.
  EXPECT_NE(static_cast<double>(HarmonicA1(4)), HarmonicA1Double(4));
  EXPECT_NEAR(static_cast<double>(HarmonicA1(4)), 11.0 / 6.0, 1e-7);

  // Summing a long series in floats drifts; rounding the 64-bit sum once does not.
  const int n = 200000;
  double exactSum = 0.0;
  float floatSum = 0.0f;
  for (int i = 1; i < n; ++i) {
    exactSum += 1.0 / i;
    floatSum += 1.0f / static_cast<float>(i);
  }
  EXPECT_EQ(HarmonicA1(n), static_cast<float>(exactSum));
  EXPECT_NE(HarmonicA1(n), floatSum);
}

TEST(HarmonicA1, ApproachesLogPlusEulerGamma) {
  // a1(n) = H(n-1) ~ ln(n-1) + gamma + 1/(2(n-1)) - 1/(12(n-1)^2).
  const double m = 999.0;
  const double asymptotic =
      std::log(m) + 0.5772156649015329 + 1.0 / (2.0 * m) - 1.0 / (12.0 * m * m);
  EXPECT_NEAR(HarmonicA1Double(1000), asymptotic, 1e-11);
}

}  // namespace
}  // namespace ovelt

#include "stats/chi_square_tail.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// Closed forms of the upper tail for small degrees of freedom.
double ClosedForm(double x, int df) {
  const double erfcPart = std::erfc(std::sqrt(x / 2.0));
  const double half = std::exp(-x / 2.0);
  switch (df) {
    case 1:
      return erfcPart;
    case 2:
      return half;
    case 3:
      return erfcPart + std::sqrt(2.0 * x / std::numbers::pi) * half;
    default:
      return half * (1.0 + x / 2.0);
  }
}

// For even df the tail is P(Poisson(x/2) < df/2), summed in logarithms so that it holds for
// any size of x and df.
double EvenTailByPoisson(double x, int df) {
  double sum = 0.0;
  for (int k = 0; k < df / 2; ++k) {
    sum += std::exp(-x / 2.0 + k * std::log(x / 2.0) - std::lgamma(k + 1.0));
  }
  return sum;
}

TEST(ChiSquareTail, AgreesWithClosedFormsForOneToFourDegrees) {
  for (int df = 1; df <= 4; ++df) {
    for (double x :
         {0.01, 0.1, 0.5, 1.0, 2.0, 2.706, 3.841, 5.0, 6.635, 10.0, 10.828, 20.0, 50.0}) {
      const double exact = ClosedForm(x, df);
      const double p = ChiSquareTail(x, df);
      // The series stops when a term falls to 1e-6 of the sum; what it leaves out is of that
      // order and only ever makes the lower tail smaller.
      EXPECT_NEAR(p, exact, 1e-6) << "df " << df << " x " << x;
      EXPECT_GE(p, exact - 1e-14) << "df " << df << " x " << x;
      if (exact >= 0.05) {
        EXPECT_NEAR(p, exact, 3e-6 * exact) << "df " << df << " x " << x;
      }
    }
  }
}

TEST(ChiSquareTail, ClassicCriticalValues) {
  EXPECT_NEAR(ChiSquareTail(3.841, 1), 0.05, 1e-4);
  EXPECT_NEAR(ChiSquareTail(6.635, 1), 0.01, 1e-5);
  EXPECT_NEAR(ChiSquareTail(10.828, 1), 0.001, 1e-6);
  EXPECT_NEAR(ChiSquareTail(5.991, 2), 0.05, 1e-4);
  EXPECT_NEAR(ChiSquareTail(18.307, 10), 0.05, 1e-4);
}

TEST(ChiSquareTail, EvenDegreesAgreeWithThePoissonSum) {
  for (int df : {6, 10, 20, 50}) {
    for (double x : {1.0, 5.0, 10.0, 30.0, 60.0}) {
      EXPECT_NEAR(ChiSquareTail(x, df), EvenTailByPoisson(x, df), 1e-6) << df << " " << x;
    }
  }
}

TEST(ChiSquareTail, LargeDegreesWhoseFirstTermLeavesTheDoubleRange) {
  // exp(-1500) is far below the smallest double, yet the tail is near one half.
  for (double x : {2900.0, 3000.0, 3100.0}) {
    const double exact = EvenTailByPoisson(x, 3000);
    EXPECT_NEAR(ChiSquareTail(x, 3000), exact, 1e-5) << x;
  }
  EXPECT_GT(ChiSquareTail(3000.0, 3000), 0.4);
  // Far below its degrees of freedom, the statistic is not at all extreme.
  EXPECT_NEAR(ChiSquareTail(100.0, 2000), 1.0, 1e-12);
}

TEST(ChiSquareTail, OddLargeDegreesStepByTheFirstTerm) {
  // Q(x; df + 2) - Q(x; df) = (x/2)^(df/2) exp(-x/2) / Gamma(df/2 + 1).
  for (int df : {1, 7, 301, 2999}) {
    const double x = df + 3.0;
    const double half = df / 2.0;
    const double step = std::exp(half * std::log(x / 2.0) - x / 2.0 - std::lgamma(half + 1.0));
    EXPECT_NEAR(ChiSquareTail(x, df + 2) - ChiSquareTail(x, df), step, 2e-5) << df;
  }
}

TEST(ChiSquareTail, HugeStatisticHasNoTail) {
  // exp(-1000) underflows: the tail is 0, not the 1 that an underflowed series would give.
  EXPECT_EQ(ChiSquareTail(2000.0, 1), 0.0);
  EXPECT_EQ(ChiSquareTail(1e12, 1), 0.0);
  EXPECT_EQ(ChiSquareTail(INFINITY, 3), 0.0);
  EXPECT_LT(ChiSquareTail(800.0, 1), 1e-5);
}

TEST(ChiSquareTail, NothingBelowZero) {
  EXPECT_EQ(ChiSquareTail(0.0, 1), 1.0);
  EXPECT_EQ(ChiSquareTail(-3.0, 1), 1.0);
  EXPECT_EQ(ChiSquareTail(-3.0, 4), 1.0);
  EXPECT_EQ(ChiSquareTail(NAN, 2), 1.0);
}

TEST(ChiSquareTail, ZeroDegreesOfFreedom) {
  EXPECT_EQ(ChiSquareTail(0.0, 0), 1.0);
  EXPECT_EQ(ChiSquareTail(2.0, 0), 0.0);
}

TEST(ChiSquareTail, NegativeDegreesOfFreedomAreRefused) {
  EXPECT_THROW((void)ChiSquareTail(2.0, -1), StatsError);
}

TEST(ChiSquareTail, NeverBelowZeroNorAboveOne) {
  for (int df = 1; df <= 12; ++df) {
    for (double x = 0.25; x < 400.0; x *= 1.7) {
      const double p = ChiSquareTail(x, df);
      EXPECT_GE(p, 0.0);
      EXPECT_LE(p, 1.0);
    }
  }
}

}  // namespace
}  // namespace ovelt

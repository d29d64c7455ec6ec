#include "stats/log_gamma.h"

#include <gtest/gtest.h>

#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

TEST(LogGamma, AgreesWithTheStandardLibraryFromOneToAHundred) {
  for (double x = 1.0; x <= 100.0; x += 0.25) {
    const double expected = std::lgamma(x);
    EXPECT_NEAR(LogGamma(x), expected, 1e-9 * std::max(1.0, std::fabs(expected))) << x;
  }
}

TEST(LogGamma, FactorialsAndHalfIntegers) {
  EXPECT_NEAR(LogGamma(1.0), 0.0, 1e-9);
  EXPECT_NEAR(LogGamma(2.0), 0.0, 1e-9);
  EXPECT_NEAR(LogGamma(6.0), std::log(120.0), 1e-9);
  // Gamma(1/2) = sqrt(pi).
  EXPECT_NEAR(LogGamma(0.5), 0.5 * std::log(3.141592653589793), 1e-8);
}

TEST(LogGamma, LargeArguments) {
  for (double x : {1e3, 1e6, 1e12})
    EXPECT_NEAR(LogGamma(x), std::lgamma(x), 1e-12 * std::lgamma(x));
}

TEST(LogGamma, NoValueAtZeroOrBelow) {
  EXPECT_THROW((void)LogGamma(0.0), StatsError);
  EXPECT_THROW((void)LogGamma(-2.5), StatsError);
}

}  // namespace
}  // namespace ovelt

#include "stats/g_test.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// G = 2 sum O ln(O / E), the likelihood-ratio form, as a second route.
double GByExpectations(std::array<double, 4> o) {
  const double n = o[0] + o[1] + o[2] + o[3];
  const std::array<double, 4> e = {
      (o[0] + o[1]) * (o[0] + o[2]) / n, (o[0] + o[1]) * (o[1] + o[3]) / n,
      (o[2] + o[3]) * (o[0] + o[2]) / n, (o[2] + o[3]) * (o[1] + o[3]) / n};
  double g = 0.0;
  for (int i = 0; i < 4; ++i) g += o[i] * std::log(o[i] / e[i]);
  return 2.0 * g;
}

TEST(GTest, HandWorkedTableWithWilliams) {
  // (10 20 / 30 40): expectations 12, 18, 28, 42.
  const double g = 2.0 * (10 * std::log(10.0 / 12) + 20 * std::log(20.0 / 18) +
                          30 * std::log(30.0 / 28) + 40 * std::log(40.0 / 42));
  // Williams by hand: (100/30 + 100/70 - 1) = 79/21, (100/40 + 100/60 - 1) = 19/6,
  // q = 1 + (79/21)(19/6) / 600 = 77101/75600.
  const double q = 77101.0 / 75600.0;
  double adjusted = 0.0;
  const float result = GTest(10, 20, 30, 40, adjusted);
  EXPECT_FLOAT_EQ(result, static_cast<float>(g));
  EXPECT_NEAR(adjusted, g / q, 1e-12);
}

TEST(GTest, AgreesWithTheLikelihoodRatioForm) {
  const std::array<std::array<int, 4>, 5> tables = {{
      {3, 1, 1, 3},
      {12, 5, 9, 7},
      {1, 9, 11, 3},
      {100, 3, 7, 250},
      {2, 4, 3, 6},
  }};
  for (const auto& t : tables) {
    double adjusted = 0.0;
    const double expected =
        GByExpectations({double(t[0]), double(t[1]), double(t[2]), double(t[3])});
    EXPECT_NEAR(GTest(t[0], t[1], t[2], t[3], adjusted), expected, 1e-6 * expected + 1e-6);
    EXPECT_LT(adjusted, expected + 1e-6);  // q is above 1
  }
}

TEST(GTest, EmptyCellIsLeftToTheCaller) {
  double adjusted = 0.0;
  try {
    (void)GTest(0, 5, 3, 4, adjusted);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Invalid procedure call or argument");
  }
}

TEST(GTest, IndependentTableGivesZeroNotANegativeRounding) {
  double adjusted = -1;
  // (5 5 / 5 5): the sums of x ln x cancel exactly in theory and to about 1e-15 in doubles.
  EXPECT_EQ(GTest(5, 5, 5, 5, adjusted), 0.0f);
  EXPECT_EQ(adjusted, 0.0);
  const float g = GTest(10, 20, 30, 60, adjusted);
  EXPECT_GE(g, 0.0f);
  EXPECT_LT(g, 1e-9f);
  EXPECT_GE(adjusted, 0.0);
}

TEST(GTestFloat, CellsMovedByAHalf) {
  // (3 1 / 1 3) moved towards independence: (2.5 1.5 / 1.5 2.5).
  const double expected = GByExpectations({2.5, 1.5, 1.5, 2.5});
  EXPECT_FLOAT_EQ(GTestFloat(2.5f, 1.5f, 1.5f, 2.5f), static_cast<float>(expected));
}

TEST(GTestFloat, IndependentCellsGiveZeroNotANegativeRounding) {
  const float g = GTestFloat(0.5f, 1.5f, 1.0f, 3.0f);
  EXPECT_GE(g, 0.0f);
  EXPECT_LT(g, 1e-6f);
  EXPECT_THROW((void)GTestFloat(0.0f, 1.5f, 1.0f, 3.0f), StatsError);
}

}  // namespace
}  // namespace ovelt

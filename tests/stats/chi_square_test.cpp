#include "stats/chi_square.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// Pearson's sum over the cells of (|O - E| - correction)^2 / E, E = row total x column
// total / N: a second route to the same statistics.
double PearsonByCells(std::array<double, 4> o, double correction) {
  const double n = o[0] + o[1] + o[2] + o[3];
  const std::array<double, 4> e = {
      (o[0] + o[1]) * (o[0] + o[2]) / n, (o[0] + o[1]) * (o[1] + o[3]) / n,
      (o[2] + o[3]) * (o[0] + o[2]) / n, (o[2] + o[3]) * (o[1] + o[3]) / n};
  double sum = 0.0;
  for (int i = 0; i < 4; ++i) {
    const double dev = std::fabs(o[i] - e[i]) - correction;
    sum += dev * dev / e[i];
  }
  return sum;
}

TEST(ChiSquare, HandWorkedTable) {
  // (10 20 / 30 40): ad - bc = -200, N = 100, margins 30 x 70 and 40 x 60:
  // 100 x 40000 / 2100 / 2400 = 50/63.
  EXPECT_FLOAT_EQ(ChiSquare(10, 20, 30, 40), static_cast<float>(50.0 / 63.0));
  // Yates: (200 - 50)^2 x 100 / 2100 / 2400 = 25/56.
  EXPECT_FLOAT_EQ(ChiSquareYates(10, 20, 30, 40), static_cast<float>(25.0 / 56.0));
}

TEST(ChiSquare, AgreesWithTheSumOverCells) {
  const std::array<std::array<int, 4>, 6> tables = {{
      {10, 20, 30, 40},
      {3, 1, 1, 3},
      {12, 5, 9, 7},
      {1, 9, 11, 3},
      {100, 3, 7, 250},
      {0, 5, 6, 2},
  }};
  for (const auto& t : tables) {
    const std::array<double, 4> o = {double(t[0]), double(t[1]), double(t[2]), double(t[3])};
    EXPECT_FLOAT_EQ(ChiSquare(t[0], t[1], t[2], t[3]), static_cast<float>(PearsonByCells(o, 0.0)));
    EXPECT_FLOAT_EQ(ChiSquareYates(t[0], t[1], t[2], t[3]),
                    static_cast<float>(PearsonByCells(o, 0.5)));
  }
}

TEST(ChiSquare, IndependentTableIsZero) {
  EXPECT_EQ(ChiSquare(2, 4, 3, 6), 0.0f);
  // Yates still subtracts N/2 from |ad - bc| = 0: 15 x 7.5^2 / (6 x 9) / (5 x 10).
  EXPECT_FLOAT_EQ(ChiSquareYates(2, 4, 3, 6), static_cast<float>(15.0 * 56.25 / 54.0 / 50.0));
}

TEST(ChiSquare, ResultIsRoundedToFloat) {
  // 50/63 is not a float: the result is the nearest float, not the double.
  const float chi = ChiSquare(10, 20, 30, 40);
  EXPECT_NE(static_cast<double>(chi), 50.0 / 63.0);
  EXPECT_NEAR(static_cast<double>(chi), 50.0 / 63.0, 1e-7);
}

TEST(ChiSquare, EmptyMarginIsADivisionByZero) {
  try {
    (void)ChiSquare(0, 0, 3, 4);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Division by zero");
  }
  EXPECT_THROW((void)ChiSquareYates(0, 5, 0, 4), StatsError);
}

TEST(ChiSquare, ProductOutside64BitsIsAnOverflow) {
  // (a+b)(c+d) = (4 x 10^9)^2 = 1.6 x 10^19, above 2^63.
  const int32_t big = 2000000000;
  try {
    (void)ChiSquare(big, big, big, big);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Overflow");
  }
  EXPECT_THROW((void)ChiSquareYates(big, big, big, big), StatsError);
  // Large cells whose products fit are computed.
  EXPECT_EQ(ChiSquare(1000000, 1000000, 1000000, 1000000), 0.0f);
}

TEST(ChiSquare, NegativeCellIsRefused) {
  EXPECT_THROW((void)ChiSquare(-1, 2, 3, 4), StatsError);
  EXPECT_THROW((void)ChiSquareYates(1, 2, 3, -4), StatsError);
}

}  // namespace
}  // namespace ovelt

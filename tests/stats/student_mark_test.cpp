#include "stats/student_mark.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// P(|T| < t) for Student's t with nu degrees of freedom, by the finite series of
// Abramowitz and Stegun 26.7.3 and 26.7.4 (theta = atan(t / sqrt(nu))).
double CentralProbability(double t, int nu) {
  const double theta = std::atan(t / std::sqrt(static_cast<double>(nu)));
  const double c2 = std::cos(theta) * std::cos(theta);
  if (nu % 2 == 1) {
    double term = std::cos(theta), sum = nu > 1 ? term : 0.0;
    for (int k = 1; k <= (nu - 3) / 2; ++k) {
      term *= c2 * (2.0 * k) / (2.0 * k + 1.0);
      sum += term;
    }
    return 2.0 / std::numbers::pi * (theta + std::sin(theta) * sum);
  }
  double term = 1.0, sum = 1.0;
  for (int k = 1; k <= (nu - 2) / 2; ++k) {
    term *= c2 * (2.0 * k - 1.0) / (2.0 * k);
    sum += term;
  }
  return std::sin(theta) * sum;
}

// The two-tailed critical value, by bisection; nu of 0 stands for the normal distribution.
double Critical(int nu, double p) {
  double lo = 0.0, hi = 1000.0;
  for (int i = 0; i < 200; ++i) {
    const double mid = (lo + hi) / 2.0;
    const double tail =
        nu == 0 ? std::erfc(mid / std::numbers::sqrt2) : 1.0 - CentralProbability(mid, nu);
    (tail > p ? lo : hi) = mid;
  }
  return lo;
}

double RoundTo3(double v) { return std::round(v * 1000.0) / 1000.0; }

constexpr std::array<double, 4> kLevels = {0.10, 0.05, 0.01, 0.001};
const std::array<const char*, 5> kMarks = {"ns", "#", "*", "**", "***"};

std::vector<int> TabulatedDf() {
  std::vector<int> dfs;
  for (int df = 1; df <= 30; ++df) dfs.push_back(df);
  for (int df : {40, 50, 60, 80, 100, 1000}) dfs.push_back(df);
  return dfs;
}

// Each tabulated value, at its float, takes its column's mark; the float below it takes the
// mark of the column before.
void ExpectColumnBounds(int queryDf, const std::array<double, 4>& bounds) {
  for (int col = 0; col < 4; ++col) {
    const float at = static_cast<float>(bounds[col]);
    const float below = std::nextafter(at, 0.0f);
    EXPECT_EQ(StudentMark(at, queryDf), kMarks[col + 1]) << "df " << queryDf << " col " << col;
    EXPECT_EQ(StudentMark(-at, queryDf), kMarks[col + 1]) << "df " << queryDf << " col " << col;
    EXPECT_EQ(StudentMark(below, queryDf), kMarks[col]) << "df " << queryDf << " col " << col;
  }
}

TEST(StudentMark, TabulatedRowsAreTheCriticalValuesOfStudentsT) {
  for (int df : TabulatedDf()) {
    std::array<double, 4> bounds{};
    for (int col = 0; col < 4; ++col) bounds[col] = RoundTo3(Critical(df, kLevels[col]));
    ExpectColumnBounds(df, bounds);
  }
}

TEST(StudentMark, InfiniteRowAboveTheLastFiniteDf) {
  // The normal quantiles, except the first column of this table, which reads 1.640.
  std::array<double, 4> bounds{};
  for (int col = 0; col < 4; ++col) bounds[col] = RoundTo3(Critical(0, kLevels[col]));
  EXPECT_EQ(bounds[0], 1.645);
  bounds[0] = 1.640;
  ExpectColumnBounds(1001, bounds);
  ExpectColumnBounds(15000, bounds);
}

TEST(StudentMark, RowOneAndZeroMarks) {
  EXPECT_EQ(StudentMark(0.0, 1), "ns");
  EXPECT_EQ(StudentMark(6.314, 1), "#");
  EXPECT_EQ(StudentMark(12.706, 1), "*");
  EXPECT_EQ(StudentMark(63.657, 1), "**");
  EXPECT_EQ(StudentMark(636.619, 1), "***");
  EXPECT_EQ(StudentMark(636.618, 1), "**");
}

TEST(StudentMark, BetweenRowsTheNearerOneWithTheMidpointGoingDown) {
  // A value between the 0.05 values of two neighbouring rows marks "#" by the lower row
  // (larger critical value) and "*" by the upper one.
  struct Case {
    int lowerMostDf, upperLeastDf;
    double between;
  };
  const std::vector<Case> cases = {
      {35, 36, 2.030},    // rows 30 (2.042) and 40 (2.021)
      {45, 46, 2.015},    // rows 40 (2.021) and 50 (2.009)
      {55, 56, 2.005},    // rows 50 (2.009) and 60 (2.000)
      {70, 71, 1.995},    // rows 60 (2.000) and 80 (1.990)
      {90, 91, 1.987},    // rows 80 (1.990) and 100 (1.984)
      {550, 551, 1.970},  // rows 100 (1.984) and 1000 (1.962)
  };
  for (const Case& c : cases) {
    EXPECT_EQ(StudentMark(c.between, c.lowerMostDf), "#") << c.lowerMostDf;
    EXPECT_EQ(StudentMark(c.between, c.lowerMostDf - 1), "#") << c.lowerMostDf;
    EXPECT_EQ(StudentMark(c.between, c.upperLeastDf), "*") << c.upperLeastDf;
    EXPECT_EQ(StudentMark(c.between, c.upperLeastDf + 1), "*") << c.upperLeastDf;
  }
  // Beyond 1000: 1.643 is below the 1000 row's 1.646 and above the infinite row's 1.640.
  EXPECT_EQ(StudentMark(1.643, 1000), "ns");
  EXPECT_EQ(StudentMark(1.643, 1001), "#");
}

TEST(StudentMark, NoRowBelowOneDegree) {
  EXPECT_THROW((void)StudentMark(2.0, 0), StatsError);
  EXPECT_THROW((void)StudentMark(2.0, -5), StatsError);
}

}  // namespace
}  // namespace ovelt

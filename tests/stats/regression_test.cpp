#include "stats/regression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

TEST(Regression, HandWorkedLine) {
  // x 1..5, y 2 4 5 4 5: Qx = 10, Qy = 6, Qxy = 6; slope 0.6, intercept 4 - 0.6 x 3 = 2.2;
  // V = (6 - 3.6) / 3 = 0.8, SE = sqrt(0.08), t = 0.6 / sqrt(0.08).
  const std::vector<double> x = {1, 2, 3, 4, 5};
  const std::vector<double> y = {2, 4, 5, 4, 5};
  double slope = 0.0, t = 0.0;
  const double intercept = Regression(x, y, slope, t);
  EXPECT_NEAR(slope, 0.6, 1e-14);
  EXPECT_NEAR(intercept, 2.2, 1e-14);
  EXPECT_NEAR(t, 0.6 / std::sqrt(0.08), 1e-12);
}

TEST(Regression, TAgreesWithTheCorrelationForm) {
  // t = r sqrt(m - 2) / sqrt(1 - r^2), r the product-moment correlation.
  const std::vector<std::vector<double>> xs = {{1, 2, 3, 4, 5, 6, 7}, {10, 3, 8, 1, 4, 7}};
  const std::vector<std::vector<double>> ys = {{3.1, 2.9, 2.2, 2.5, 1.4, 1.6, 0.2},
                                               {0.5, 0.1, 0.9, 0.3, 0.2, 0.4}};
  for (size_t k = 0; k < xs.size(); ++k) {
    const auto& x = xs[k];
    const auto& y = ys[k];
    const double m = static_cast<double>(x.size());
    double mx = 0, my = 0;
    for (size_t i = 0; i < x.size(); ++i) mx += x[i] / m, my += y[i] / m;
    double cxx = 0, cyy = 0, cxy = 0;
    for (size_t i = 0; i < x.size(); ++i) {
      cxx += (x[i] - mx) * (x[i] - mx);
      cyy += (y[i] - my) * (y[i] - my);
      cxy += (x[i] - mx) * (y[i] - my);
    }
    const double r = cxy / std::sqrt(cxx * cyy);
    double slope = 0.0, t = 0.0;
    const double intercept = Regression(x, y, slope, t);
    EXPECT_NEAR(slope, cxy / cxx, 1e-12);
    EXPECT_NEAR(intercept, my - cxy / cxx * mx, 1e-12);
    EXPECT_NEAR(t, r * std::sqrt(m - 2.0) / std::sqrt(1.0 - r * r), 1e-10);
  }
}

TEST(Regression, AllXEqualGivesFlatLineThroughTheMeanOfY) {
  const std::vector<double> x(7, 0.1);  // 0.1 has no exact double: Qx is not exactly 0
  const std::vector<double> y = {1, 2, 3, 4, 5, 6, 8};
  double slope = 1.0, t = 1.0;
  const double intercept = Regression(x, y, slope, t);
  EXPECT_EQ(slope, 0.0);
  EXPECT_EQ(t, 0.0);
  EXPECT_NEAR(intercept, 29.0 / 7.0, 1e-14);
}

TEST(Regression, PerfectFitHasNoStandardErrorAndTZero) {
  // Integers: the residual variance is exactly 0.
  const std::vector<double> x = {1, 2, 3, 4};
  const std::vector<double> y = {3, 5, 7, 9};
  double slope = 0.0, t = 1.0;
  EXPECT_DOUBLE_EQ(Regression(x, y, slope, t), 1.0);
  EXPECT_DOUBLE_EQ(slope, 2.0);
  EXPECT_EQ(t, 0.0);

  // y = 0.2 + 0.3 x: rounding makes the residual variance slightly negative.
  const std::vector<double> x3 = {1, 2, 3};
  const std::vector<double> y3 = {0.2 + 0.3 * 1, 0.2 + 0.3 * 2, 0.2 + 0.3 * 3};
  double slope3 = 0.0, t3 = 1.0;
  EXPECT_NEAR(Regression(x3, y3, slope3, t3), 0.2, 1e-14);
  EXPECT_NEAR(slope3, 0.3, 1e-14);
  EXPECT_EQ(t3, 0.0);
}

TEST(Regression, WhatCannotBeComputedFailsWithItsMessage) {
  double slope = 0.0, t = 0.0;
  const std::vector<double> none;
  try {
    (void)Regression(none, none, slope, t);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Error computing Regresion statistics.");
  }
  const std::vector<double> two = {1, 2};
  EXPECT_THROW((void)Regression(two, two, slope, t), StatsError);
  const std::vector<double> three = {1, 2, 3};
  EXPECT_THROW((void)Regression(three, two, slope, t), StatsError);
}

}  // namespace
}  // namespace ovelt

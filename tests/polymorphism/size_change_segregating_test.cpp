#include "analyses/polymorphism/size_changes/size_change_segregating.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/size_changes/size_change_lineages.h"
#include "stats/harmonic.h"

namespace ovelt {
namespace {

TEST(RecentTreeLength, TwoGenes) {
  // Two branches until they meet at an exponential time of mean 1: 2 E[min(T, t)].
  EXPECT_NEAR(RecentTreeLength(2, 0.7), 2.0 * (1.0 - std::exp(-0.7)), 1e-15);
}

TEST(RecentTreeLength, GrowsToTheWholeTree) {
  for (const int n : {3, 10, 100}) EXPECT_NEAR(RecentTreeLength(n, 60.0), 2.0 * HarmonicA1Double(n), 1e-9);
  EXPECT_EQ(RecentTreeLength(10, 0.0), 0.0);
}

TEST(RecentTreeLength, IsTheIntegralOfTheLineagesInTheTree) {
  // Second route: integrate E[A(s); A(s) >= 2] from the distribution of the lineages by
  // Simpson's rule.
  constexpr int n = 12;
  const double t = 0.8;
  const int steps = 400;
  const auto in_tree = [](double s) {
    const std::vector<double> p = LineageDistribution(n, s);
    double sum = 0.0;
    for (int m = 2; m <= n; ++m) sum += m * p[static_cast<size_t>(m)];
    return sum;
  };
  double integral = in_tree(0.0) + in_tree(t);
  for (int i = 1; i < steps; ++i) integral += (i % 2 ? 4.0 : 2.0) * in_tree(t * i / steps);
  integral *= t / steps / 3.0;
  EXPECT_NEAR(RecentTreeLength(n, t), integral, 1e-6);
}

TEST(ExpectedSegregatingSites, EndsAtThetaInitialAndThetaFinal) {
  const int n = 8;
  const double a1 = 1 + 1 / 2.0 + 1 / 3.0 + 1 / 4.0 + 1 / 5.0 + 1 / 6.0 + 1 / 7.0;
  EXPECT_NEAR(ExpectedSegregatingSites(n, 2.0, 20.0, 0.0), 2.0 * a1, 1e-12);
  EXPECT_NEAR(ExpectedSegregatingSites(n, 2.0, 20.0, 80.0), 20.0 * a1, 1e-9);
  EXPECT_NEAR(ExpectedSegregatingSites(n, 5.0, 5.0, 1.3), 5.0 * a1, 1e-12);
}

TEST(ExpectedSegregatingSites, TwoGenes) {
  EXPECT_NEAR(ExpectedSegregatingSites(2, 1.0, 9.0, 0.25), 9.0 - 8.0 * std::exp(-0.25), 1e-12);
  EXPECT_EQ(ExpectedSegregatingSites(1, 1.0, 9.0, 0.25), 0.0);
}

}  // namespace
}  // namespace ovelt

#include "analyses/polymorphism/size_changes/size_change_lineages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace ovelt {
namespace {

double Rising(double a, int k) {
  double r = 1.0;
  for (int j = 0; j < k; ++j) r *= a + j;
  return r;
}
double Falling(double a, int k) {
  double r = 1.0;
  for (int j = 0; j < k; ++j) r *= a - j;
  return r;
}

// Tavaré's (1984) closed form, fine in double precision for small samples.
double Tavare(int n, int m, double t) {
  if (m == 1) {
    double p = 1.0;
    for (int k = 2; k <= n; ++k)
      p += std::exp(-k * (k - 1) * t / 2) * (2 * k - 1) * ((k % 2 == 0) ? -1 : 1) *
           Falling(n, k) / Rising(n, k);
    return p;
  }
  double p = 0.0;
  for (int k = m; k <= n; ++k)
    p += std::exp(-k * (k - 1) * t / 2) * (2 * k - 1) * (((k - m) % 2 == 0) ? 1 : -1) *
         Rising(m, k - 1) * Falling(n, k) / (std::tgamma(m + 1.0) * std::tgamma(k - m + 1.0) *
                                             Rising(n, k));
  return p;
}

TEST(LineageDistribution, ThreeGenesByHand) {
  // Three lineages leave at rate 3, two at rate 1:
  // P(3) = e^-3t, P(2) = 3 (e^-t - e^-3t) / 2, P(1) the rest.
  for (const double t : {0.05, 0.4, 2.0}) {
    const std::vector<double> p = LineageDistribution(3, t);
    EXPECT_NEAR(p[3], std::exp(-3 * t), 1e-12);
    EXPECT_NEAR(p[2], 1.5 * (std::exp(-t) - std::exp(-3 * t)), 1e-12);
    EXPECT_NEAR(p[1], 1.0 - p[2] - p[3], 1e-12);
  }
}

TEST(LineageDistribution, AgreesWithTavaresFormulaForSmallSamples) {
  for (const int n : {2, 4, 7, 10}) {
    for (const double t : {0.01, 0.1, 0.7, 3.0}) {
      const std::vector<double> p = LineageDistribution(n, t);
      for (int m = 1; m <= n; ++m) EXPECT_NEAR(p[static_cast<size_t>(m)], Tavare(n, m, t), 1e-10)
          << "n " << n << " m " << m << " t " << t;
    }
  }
}

TEST(LineageDistribution, LargeSampleSumsToOneWithTavaresMean) {
  // Tavaré's mean is a series of positive terms, exact for any n: an independent check of the
  // whole distribution where the closed form of each probability fails.
  for (const double t : {0.001, 0.05, 1.0}) {
    const std::vector<double> p = LineageDistribution(300, t);
    double sum = 0.0, mean = 0.0;
    for (size_t m = 1; m < p.size(); ++m) {
      EXPECT_GE(p[m], 0.0);
      sum += p[m];
      mean += static_cast<double>(m) * p[m];
    }
    EXPECT_NEAR(sum, 1.0, 1e-10);
    EXPECT_NEAR(mean, ExpectedLineages(300, t), 1e-7 * ExpectedLineages(300, t));
  }
}

TEST(LineageDistribution, DegenerateTimes) {
  const std::vector<double> now = LineageDistribution(5, 0.0);
  EXPECT_EQ(now[5], 1.0);
  EXPECT_EQ(std::accumulate(now.begin(), now.end(), 0.0), 1.0);
  EXPECT_NEAR(LineageDistribution(5, 200.0)[1], 1.0, 1e-12);
  EXPECT_EQ(LineageDistribution(0, 1.0).size(), 1u);
}

TEST(ExpectedLineages, KnownValues) {
  EXPECT_NEAR(ExpectedLineages(2, 0.5), 1.0 + std::exp(-0.5), 1e-15);
  EXPECT_NEAR(ExpectedLineages(40, 0.0), 40.0, 1e-10);
}

}  // namespace
}  // namespace ovelt

#include "stats/poisson.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

struct Moments {
  double mean;
  double variance;
  std::vector<int> counts;  // by value, up to 200
};

Moments Draw(double mean, int draws, int32_t seed) {
  RandomState random;
  PoissonState poisson;
  Moments m{0.0, 0.0, std::vector<int>(201, 0)};
  double sum = 0.0, sumSquares = 0.0;
  for (int i = 0; i < draws; ++i) {
    const double v = PoissonDeviate(mean, seed, random, poisson);
    EXPECT_GE(v, 0.0);
    EXPECT_EQ(v, std::floor(v));
    sum += v;
    sumSquares += v * v;
    if (v <= 200) ++m.counts[static_cast<size_t>(v)];
  }
  m.mean = sum / draws;
  m.variance = (sumSquares - sum * sum / draws) / (draws - 1);
  return m;
}

// The bounds below are about five standard errors: the variance of the sample mean is
// mean/n and that of the sample variance (mean + 2 mean^2)/n for a Poisson variable.
TEST(PoissonDeviate, SmallMeanByProductOfUniforms) {
  const int n = 20000;
  const Moments m = Draw(3.0, n, -31);
  EXPECT_NEAR(m.mean, 3.0, 5.0 * std::sqrt(3.0 / n));
  EXPECT_NEAR(m.variance, 3.0, 5.0 * std::sqrt((3.0 + 18.0) / n));
  // P(0) = exp(-3): binomial standard error sqrt(p(1-p)/n).
  const double p0 = std::exp(-3.0);
  EXPECT_NEAR(m.counts[0] / double(n), p0, 5.0 * std::sqrt(p0 * (1 - p0) / n));
}

TEST(PoissonDeviate, LargeMeanByRejection) {
  const int n = 20000;
  const Moments m = Draw(50.0, n, -8);
  EXPECT_NEAR(m.mean, 50.0, 5.0 * std::sqrt(50.0 / n));
  EXPECT_NEAR(m.variance, 50.0, 5.0 * std::sqrt((50.0 + 5000.0) / n));
  // P(X = 50) = exp(50 ln 50 - 50 - ln 50!).
  const double p50 = std::exp(50 * std::log(50.0) - 50.0 - std::lgamma(51.0));
  EXPECT_NEAR(m.counts[50] / double(n), p50, 5.0 * std::sqrt(p50 * (1 - p50) / n));
}

TEST(PoissonDeviate, SameSeedSameDeviates) {
  const Moments a = Draw(7.5, 500, -123);
  const Moments b = Draw(7.5, 500, -123);
  EXPECT_EQ(a.counts, b.counts);
  const Moments c = Draw(20.0, 500, -123);
  const Moments d = Draw(20.0, 500, -123);
  EXPECT_EQ(c.counts, d.counts);
}

TEST(PoissonDeviate, ChangingMeansBetweenCalls) {
  // Alternating the branches must leave each with its own values.
  RandomState random;
  PoissonState poisson;
  int32_t seed = -17;
  double small = 0.0, large = 0.0;
  const int n = 5000;
  for (int i = 0; i < n; ++i) {
    small += PoissonDeviate(2.0, seed, random, poisson);
    large += PoissonDeviate(40.0, seed, random, poisson);
  }
  EXPECT_NEAR(small / n, 2.0, 5.0 * std::sqrt(2.0 / n));
  EXPECT_NEAR(large / n, 40.0, 5.0 * std::sqrt(40.0 / n));
}

TEST(PoissonDeviate, MeansEqualAsFloatsOnEitherSideOfTwelve) {
  // 12.0000001 and 11.9999999 are the same float; each branch still uses its own values.
  RandomState random;
  PoissonState poisson;
  int32_t seed = -5;
  (void)PoissonDeviate(12.0000001, seed, random, poisson);
  double sum = 0.0;
  const int n = 4000;
  for (int i = 0; i < n; ++i) sum += PoissonDeviate(11.9999999, seed, random, poisson);
  EXPECT_NEAR(sum / n, 12.0, 5.0 * std::sqrt(12.0 / n));
}

TEST(PoissonDeviate, ZeroMeanGivesZero) {
  RandomState random;
  PoissonState poisson;
  int32_t seed = -1;
  for (int i = 0; i < 100; ++i) EXPECT_EQ(PoissonDeviate(0.0, seed, random, poisson), 0.0);
}

TEST(PoissonProb, AgreesWithTheDirectFormula) {
  // P(X = k) = x^k e^-x / k!.
  EXPECT_NEAR(PoissonProb(3.0, 0), std::exp(-3.0), 1e-15);
  EXPECT_NEAR(PoissonProb(3.0, 2), 9.0 * std::exp(-3.0) / 2.0, 1e-15);
  EXPECT_NEAR(PoissonProb(2.5, 5), std::pow(2.5, 5) * std::exp(-2.5) / 120.0, 1e-14);
}

TEST(PoissonProb, SumsToOne) {
  double sum = 0.0;
  for (int k = 0; k <= 60; ++k) sum += PoissonProb(10.0, k);
  EXPECT_NEAR(sum, 1.0, 1e-12);
}

TEST(PoissonProb, DegenerateAndBadArguments) {
  EXPECT_EQ(PoissonProb(0.0, 0), 1.0);
  EXPECT_EQ(PoissonProb(0.0, 3), 0.0);
  EXPECT_THROW((void)PoissonProb(-1.0, 2), StatsError);
  EXPECT_THROW((void)PoissonProb(1.0, -2), StatsError);
  EXPECT_THROW((void)PoissonProb(1.0, 40000), StatsError);
}

}  // namespace
}  // namespace ovelt

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "support/hand_math.h"
#include "tools/binomial_distribution.h"
#include "tools/hypergeometric_distribution.h"
#include "tools/poisson_distribution.h"

namespace ovelt {
namespace {

using testing::Choose;

// C(n, i) p^i (1 - p)^(n - i) by direct products.
double BinomialByProducts(double p, int n, int i) {
  double value = Choose(n, i);
  for (int j = 0; j < i; ++j) value *= p;
  for (int j = 0; j < n - i; ++j) value *= 1 - p;
  return value;
}

TEST(Binomial, ASmallCaseByDirectProducts) {
  // p = 0.3, n = 5, k = 2: P[X = 2] = 10 0.09 0.343 = 0.3087;
  // P[X < 2] = 0.7^5 + 5 0.3 0.7^4 = 0.16807 + 0.36015 = 0.52822.
  const DiscreteProbabilities r = BinomialProbabilities(0.3, 5, 2);
  EXPECT_NEAR(r.PEqual, 0.3087, 1e-12);
  EXPECT_NEAR(r.PEqual, BinomialByProducts(0.3, 5, 2), 1e-12);
  EXPECT_NEAR(r.PLess, 0.52822, 1e-12);
  EXPECT_NEAR(r.PLess, BinomialByProducts(0.3, 5, 0) + BinomialByProducts(0.3, 5, 1), 1e-12);
  EXPECT_DOUBLE_EQ(r.Mean, 1.5);
  EXPECT_DOUBLE_EQ(r.Variance, 1.05);
}

TEST(Binomial, EveryValueOfASmallCase) {
  for (int k = 0; k <= 12; ++k) {
    const DiscreteProbabilities r = BinomialProbabilities(0.37, 12, k);
    EXPECT_NEAR(r.PEqual, BinomialByProducts(0.37, 12, k), 1e-12) << k;
  }
  // The whole distribution sums to 1, and its mean is n p.
  const DiscreteProbabilities last = BinomialProbabilities(0.37, 12, 12);
  EXPECT_NEAR(last.PLess + last.PEqual, 1.0, 1e-12);
  double mean = 0;
  for (int k = 0; k <= 12; ++k) mean += k * BinomialProbabilities(0.37, 12, k).PEqual;
  EXPECT_NEAR(mean, BinomialProbabilities(0.37, 12, 0).Mean, 1e-12);
}

TEST(Binomial, KOfZeroHasNothingBelowIt) {
  const DiscreteProbabilities r = BinomialProbabilities(0.5, 4, 0);
  EXPECT_EQ(r.PLess, 0.0);
  EXPECT_NEAR(r.PEqual, 1.0 / 16, 1e-15);
}

TEST(Binomial, TheLargestTableStaysFinite) {
  // n = 32766 with k at the mean: far beyond what factorials in doubles could hold.
  const DiscreteProbabilities r = BinomialProbabilities(0.5, 32766, 16383);
  // The central term is close to sqrt(2 / (pi n)) (de Moivre-Laplace).
  EXPECT_NEAR(r.PEqual, std::sqrt(2 / (std::numbers::pi * 32766)), 1e-6);
  // By symmetry P[X < n/2] = (1 - P[X = n/2]) / 2.
  EXPECT_NEAR(r.PLess, (1 - r.PEqual) / 2, 1e-9);
}

TEST(Hypergeometric, ASmallCaseByDirectProducts) {
  // N = 10, M = 4, n = 3, k = 1: P = C(4,1) C(6,2) / C(10,3) = 60 / 120 = 0.5;
  // P[X < 1] = C(6,3) / 120 = 20 / 120. E = 3 0.4 = 1.2; var = 3 0.4 0.6 7 / 9 = 0.56.
  const DiscreteProbabilities r = HypergeometricProbabilities(10, 4, 3, 1);
  EXPECT_NEAR(r.PEqual, 0.5, 1e-12);
  EXPECT_NEAR(r.PLess, 20.0 / 120, 1e-12);
  EXPECT_DOUBLE_EQ(r.Mean, 1.2);
  EXPECT_NEAR(r.Variance, 0.56, 1e-12);
}

TEST(Hypergeometric, ImpossibleValuesHaveProbabilityZero) {
  // N = 10, M = 8, n = 5: at least 3 marked elements in every sample.
  EXPECT_EQ(HypergeometricProbabilities(10, 8, 5, 2).PEqual, 0.0);
  EXPECT_EQ(HypergeometricProbabilities(10, 8, 5, 3).PLess, 0.0);
  EXPECT_NEAR(HypergeometricProbabilities(10, 8, 5, 3).PEqual,
              Choose(8, 3) * Choose(2, 2) / Choose(10, 5), 1e-12);
  double total = 0;
  for (int k = 0; k <= 5; ++k) total += HypergeometricProbabilities(10, 8, 5, k).PEqual;
  EXPECT_NEAR(total, 1.0, 1e-12);
}

TEST(Hypergeometric, APopulationOfOneHasNoVariance) {
  const DiscreteProbabilities r = HypergeometricProbabilities(1, 1, 1, 1);
  EXPECT_NEAR(r.PEqual, 1.0, 1e-15);
  EXPECT_EQ(r.Variance, 0.0);
  EXPECT_EQ(r.Mean, 1.0);
}

TEST(Poisson, ASmallCaseByTheSeries) {
  // Terms e^-l l^i / i! built one from the other: t(i) = t(i-1) l / i.
  const double lambda = 2.5;
  double term = std::exp(-lambda);
  double below = 0;
  for (int i = 0; i < 3; ++i) {
    below += term;
    term *= lambda / (i + 1);
  }
  const DiscreteProbabilities r = PoissonProbabilities(lambda, 3);
  EXPECT_NEAR(r.PEqual, term, 1e-14);
  EXPECT_NEAR(r.PEqual, 0.21376301724973648, 1e-14);  // e^-2.5 15.625 / 6
  EXPECT_NEAR(r.PLess, below, 1e-14);
  EXPECT_EQ(r.Mean, 2.5);
  EXPECT_EQ(r.Variance, 2.5);
}

TEST(Poisson, ALargeKStaysFinite) {
  // Near the mean of a large lambda the distribution is close to normal: P[X < lambda] ~ 1/2.
  const DiscreteProbabilities r = PoissonProbabilities(30000, 30000);
  EXPECT_NEAR(r.PEqual, 1 / std::sqrt(2 * std::numbers::pi * 30000), 1e-6);
  EXPECT_NEAR(r.PLess, 0.5, 0.01);
}

}  // namespace
}  // namespace ovelt

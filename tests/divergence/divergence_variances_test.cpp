// Sampling variances of the Jukes and Cantor Pi, Dxy and Da from the pair tables.
#include <gtest/gtest.h>

#include <random>

#include "analyses/divergence/dna_divergence/divergence_variances.h"

namespace ovelt {
namespace {

PairMatrix Within(int32_t n, std::mt19937& rng) {
  PairMatrix m(n, n);
  std::uniform_real_distribution<float> u(0.0F, 0.3F);
  for (int32_t i = 1; i <= n; ++i)
    for (int32_t j = i + 1; j <= n; ++j) m.At(i, j) = m.At(j, i) = u(rng);
  return m;
}

PairMatrix Between(int32_t n1, int32_t n2, std::mt19937& rng) {
  PairMatrix m(n1, n2);
  std::uniform_real_distribution<float> u(0.0F, 0.4F);
  for (int32_t i = 1; i <= n1; ++i)
    for (int32_t j = 1; j <= n2; ++j) m.At(i, j) = u(rng);
  return m;
}

TEST(DivergenceVariances, TwoSequencesByHand) {
  // n = 2, one distance a, K = a: t = a^2 / 16, A = 2 a^2 (i = 1 and 2, each with j = k the
  // other), B = a^2: Var = 4 / 2 x (-2 a^2 / 16 + 0 + a^2 / 4) = a^2 / 4.
  PairMatrix d1(2, 2);
  d1.At(1, 2) = d1.At(2, 1) = 0.5F;
  ASSERT_TRUE(VarianceWithin(d1, 0.5).has_value());
  EXPECT_DOUBLE_EQ(*VarianceWithin(d1, 0.5), 0.0625);
  // One sequence: the denominator (n - 1) n is 0.
  EXPECT_FALSE(VarianceWithin(PairMatrix(1, 1), 0.0).has_value());
}

TEST(DivergenceVariances, DxyOfTwoAgainstOneByHand) {
  // d = (1, 0) down the column, D = 1/2: T0 = 1, T1 = (1 + 0)^2 = 1, T2 = 1; E0 = -2 / 4,
  // E1 = 1 x (1 + 1) / 4, E2 = 0 (n2 - 1 = 0), E3 = 1 / 2: Var = (1/2) / 2 = 1/4.
  PairMatrix d(2, 1);
  d.At(1, 1) = 1.0F;
  EXPECT_DOUBLE_EQ(*VarianceBetween(d, 0.5), 0.25);
  // One sequence each: E0 = -D^2 and E3 = D^2 cancel.
  PairMatrix one(1, 1);
  one.At(1, 1) = 0.3F;
  EXPECT_NEAR(*VarianceBetween(one, 0.3F), 0.0, 1e-15);
}

TEST(DivergenceVariances, CovarianceOfTwoAgainstOneByHand) {
  // n1 = 2, d1 = a, d = (x, y): C1 = a x + a y, Cov = (2/2)(a (x + y) / 4 - (a / 2)(x + y) / 2),
  // which is 0 for any a, x, y.
  PairMatrix d1(2, 2);
  d1.At(1, 2) = d1.At(2, 1) = 0.25F;
  PairMatrix d(2, 1);
  d.At(1, 1) = 0.5F;
  d.At(2, 1) = 0.75F;
  EXPECT_DOUBLE_EQ(CovarianceWithin(d1, d, 0.25, 0.625, false), 0.0);
  // Seen from a population 2 of one sequence: no pair within makes C2 = 0, and its K2 term is
  // multiplied by n2 - 1 = 0.
  EXPECT_DOUBLE_EQ(CovarianceWithin(PairMatrix(1, 1), d, 0.0, 0.625, true), 0.0);
}

// Plain twins: the sums of the variances written as their triple loops, term by term (the
// program folds them into row and column sums).
TEST(DivergenceVariances, EqualTheTripleSumsOnRandomTables) {
  std::mt19937 rng(31415);
  for (int round = 0; round < 20; ++round) {
    const int32_t n1 = 2 + round % 6;
    const int32_t n2 = 2 + round % 4;
    const PairMatrix d1 = Within(n1, rng);
    const PairMatrix d2 = Within(n2, rng);
    const PairMatrix d = Between(n1, n2, rng);
    const double k1 = 0.11, k2 = 0.07, dm = 0.2;
    const double a1 = n1, a2 = n2;

    double a = 0, b = 0;
    for (int32_t i = 1; i <= n1; ++i) {
      for (int32_t j = 1; j <= n1; ++j)
        for (int32_t m = 1; m <= n1; ++m)
          if (j != i && m != i) a += static_cast<double>(d1.At(i, j)) * d1.At(i, m);
      for (int32_t j = i + 1; j <= n1; ++j) b += static_cast<double>(d1.At(i, j)) * d1.At(i, j);
    }
    const double t = std::pow((a1 - 1) * k1 / (2 * a1), 2);
    const double var1 = 4 / ((a1 - 1) * a1) *
                        ((6 - 4 * a1) * t + (a1 - 2) * a / std::pow(a1, 3) + b / (a1 * a1));
    EXPECT_NEAR(*VarianceWithin(d1, k1), var1, 1e-12 * (1 + std::abs(var1)));

    double t0 = 0, t1 = 0, t2 = 0, c1 = 0, c2 = 0;
    for (int32_t i = 1; i <= n1; ++i)
      for (int32_t j = 1; j <= n2; ++j) {
        t0 += static_cast<double>(d.At(i, j)) * d.At(i, j);
        for (int32_t i2 = 1; i2 <= n1; ++i2) t1 += static_cast<double>(d.At(i, j)) * d.At(i2, j);
        for (int32_t j2 = 1; j2 <= n2; ++j2) t2 += static_cast<double>(d.At(i, j)) * d.At(i, j2);
      }
    for (int32_t i = 1; i <= n1; ++i)
      for (int32_t j = 1; j <= n1; ++j)
        for (int32_t m = 1; m <= n2; ++m) c1 += static_cast<double>(d1.At(i, j)) * d.At(i, m);
    for (int32_t i = 1; i <= n2; ++i)
      for (int32_t j = 1; j <= n2; ++j)
        for (int32_t m = 1; m <= n1; ++m) c2 += static_cast<double>(d2.At(i, j)) * d.At(m, i);
    const double vxy = ((a1 - 1) * (t1 + t0) / (a1 * a1 * a2) +
                        (a2 - 1) * (t2 + t0) / (a2 * a2 * a1) + (1 - a1 - a2) * dm * dm +
                        t0 / (a1 * a2)) /
                       (a1 * a2);
    EXPECT_NEAR(*VarianceBetween(d, dm), vxy, 1e-12);
    const double cov1 = (2 / a1) * (c1 / (a1 * a1 * a2) - ((a1 - 1) * k1 / a1) * dm);
    const double cov2 = (2 / a2) * (c2 / (a2 * a2 * a1) - ((a2 - 1) * k2 / a2) * dm);
    EXPECT_NEAR(CovarianceWithin(d1, d, k1, dm, false), cov1, 1e-12);
    EXPECT_NEAR(CovarianceWithin(d2, d, k2, dm, true), cov2, 1e-12);
  }
}

TEST(DivergenceVariances, DaCombinesTheOthers) {
  std::mt19937 rng(2718);
  DivergenceJukesCantor jc;
  jc.PairJC1 = Within(4, rng);
  jc.PairJC2 = Within(3, rng);
  jc.PairJCxy = Between(4, 3, rng);
  jc.Pi1JC = 0.1F;
  jc.Pi2JC = 0.12F;
  jc.DxyJC = 0.2F;
  const DivergenceVariances v = ComputeDivergenceVariances(jc);
  ASSERT_TRUE(v.VarPi1 && v.VarPi2 && v.VarDxy);
  EXPECT_DOUBLE_EQ(*v.VarPi1, *VarianceWithin(jc.PairJC1, 0.1F));
  EXPECT_DOUBLE_EQ(*v.VarDxy, *VarianceBetween(jc.PairJCxy, 0.2F));
  // These tables give three positive variances, so the covariances enter.
  ASSERT_TRUE(*v.VarPi1 > 0 && *v.VarPi2 > 0 && *v.VarDxy > 0);
  EXPECT_NE(v.Cov1, 0.0);
  EXPECT_DOUBLE_EQ(v.Cov1, CovarianceWithin(jc.PairJC1, jc.PairJCxy, 0.1F, 0.2F, false));
  EXPECT_DOUBLE_EQ(v.Cov2, CovarianceWithin(jc.PairJC2, jc.PairJCxy, 0.12F, 0.2F, true));
  EXPECT_DOUBLE_EQ(v.VarDa, *v.VarDxy + (*v.VarPi1 + *v.VarPi2) / 4 - (v.Cov1 + v.Cov2) / 2);

  // A population of one sequence: its variance is not determined and counts 0, and the
  // covariances are not computed.
  jc.PairJC2 = PairMatrix(1, 1);
  jc.PairJCxy = Between(4, 1, rng);
  jc.Pi2JC.reset();
  const DivergenceVariances w = ComputeDivergenceVariances(jc);
  EXPECT_FALSE(w.VarPi2.has_value());
  EXPECT_EQ(w.Cov1, 0.0);
  EXPECT_EQ(w.Cov2, 0.0);
  EXPECT_DOUBLE_EQ(w.VarDa, *w.VarDxy + *w.VarPi1 / 4);
}

}  // namespace
}  // namespace ovelt

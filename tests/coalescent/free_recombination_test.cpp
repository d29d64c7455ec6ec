#include "coalescent/free_recombination.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace ovelt {
namespace {

double A1(int n) {
  double sum = 0.0;
  for (int i = 1; i < n; ++i) sum += 1.0 / i;
  return sum;
}

int MutantCount(const HaplotypeMatrix& m, int column) {
  int count = 0;
  for (int row = 0; row < m.Rows(); ++row) count += m.at(row, column);
  return count;
}

// Mean pairwise differences: a column with k mutants separates k (n - k) pairs.
double PairwiseAverage(const HaplotypeMatrix& m) {
  const int n = m.Rows();
  double differences = 0.0;
  for (int c = 0; c < m.Columns(); ++c) {
    const int k = MutantCount(m, c);
    differences += static_cast<double>(k) * (n - k);
  }
  return differences / (n * (n - 1) / 2.0);
}

struct Stream {
  RandomState random;
  PoissonState poisson;
  int32_t seed;
  explicit Stream(int32_t s) : seed(-s) {}
};

// Under free recombination a segregating site has k mutants with probability
// (1/k) / a1 (Watterson 1975). Over 20,000 columns the chi-square statistic of the observed
// counts against these shares has n - 2 degrees of freedom: its mean is n - 2 and its standard
// deviation sqrt(2 (n - 2)); the bound is the mean plus six standard deviations.
TEST(FreeRecombination, MutantCountsFollowOneOverK) {
  const int n = 10;
  const double a1 = A1(n);
  Stream s(4321);
  HaplotypeMatrix m;
  std::vector<double> observed(n, 0.0);
  int columns = 0;
  for (int rep = 0; rep < 10; ++rep) {
    FreeRecombinationReplicate(n, 1.0, 2000, s.seed, s.random, s.poisson, m);
    for (int c = 0; c < m.Columns(); ++c) {
      const int k = MutantCount(m, c);
      ASSERT_GE(k, 1);
      ASSERT_LE(k, n - 1);
      observed[static_cast<size_t>(k)] += 1.0;
      ++columns;
    }
  }
  double chi = 0.0;
  for (int k = 1; k < n; ++k) {
    const double expected = columns / (k * a1);
    chi += (observed[static_cast<size_t>(k)] - expected) *
           (observed[static_cast<size_t>(k)] - expected) / expected;
  }
  const double df = n - 2;
  EXPECT_LT(chi, df + 6.0 * std::sqrt(2.0 * df));
  // And the two ends really are 1/k apart: singletons about n - 1 times the (n-1)-tons.
  EXPECT_GT(observed[1] / observed[n - 1], (n - 1) * 0.7);
}

// Replays the draws of a replicate of 4 sequences with 6 given columns on an independent stream
// of the same seed: one U for k (the first partial sum of 1, 1/2, 1/3 reaching U a1), then a
// row draw j = int(i U) from the shrinking list for each of min(k, n - k) rows. Frequencies 3 of
// 4 start the column at 1 and draw the single row that is 0. The generator must leave exactly
// the replayed matrix and have used exactly as many draws: the next U of both streams agrees.
TEST(FreeRecombination, ReplayOfTheDrawsGivesTheSameMatrix) {
  const int n = 4, columns = 10;
  const double a1 = 1.0 + 0.5 + 1.0 / 3.0;
  Stream generator(777);
  HaplotypeMatrix m;
  FreeRecombinationReplicate(n, 0.0, columns, generator.seed, generator.random, generator.poisson,
                             m);
  ASSERT_EQ(m.Rows(), n);
  ASSERT_EQ(m.Columns(), columns);

  Stream replay(777);
  int commonColumns = 0;
  for (int c = 0; c < columns; ++c) {
    const double x = Ran(replay.seed, replay.random) * a1;
    const int k = x <= 1.0 ? 1 : (x <= 1.5 ? 2 : 3);
    int expected[4];
    const int start = k <= 2 ? 0 : 1;
    for (int& cell : expected) cell = start;
    int list[4] = {0, 1, 2, 3};
    int remaining = 4;
    for (int drawn = 0; drawn < (start == 0 ? k : n - k); ++drawn) {
      const int j = static_cast<int>(remaining * Ran(replay.seed, replay.random));
      expected[list[j]] = 1 - start;
      list[j] = list[remaining - 1];
      --remaining;
    }
    if (k == 3) ++commonColumns;
    for (int row = 0; row < n; ++row) EXPECT_EQ(m.at(row, c), expected[row]) << "column " << c;
  }
  EXPECT_GT(commonColumns, 0) << "the seed should give a column with 3 mutants of 4";
  EXPECT_EQ(Ran(generator.seed, generator.random), Ran(replay.seed, replay.random));
}

TEST(FreeRecombination, GivenSegregatingSitesGiveExactlyThatManyColumns) {
  Stream s(99);
  HaplotypeMatrix m;
  for (const int segsites : {0, 1, 17, 300}) {
    FreeRecombinationReplicate(12, 5.0, segsites, s.seed, s.random, s.poisson, m);
    EXPECT_EQ(m.Columns(), segsites);
    EXPECT_EQ(m.Rows(), 12);
  }
}

// With theta given, S is Poisson with mean theta a1, so its variance is theta a1 as well and
// the mean of R replicates has standard error sqrt(theta a1 / R). Pi has mean theta (each
// column adds k (n - k) / C(n, 2), whose mean under P(k) = 1 / (k a1) is 1 / a1), and, S being
// Poisson and the columns independent, variance theta a1 E[h^2] = theta sum_k h_k^2 / k with
// h_k = k (n - k) / C(n, 2).
TEST(FreeRecombination, MeanSIsThetaA1AndPiMomentsMatchTheory) {
  const int n = 10, replicates = 4000;
  const double theta = 5.0, a1 = A1(n);
  Stream s(2024);
  HaplotypeMatrix m;
  double sumS = 0.0, sumPi = 0.0, sumPi2 = 0.0;
  for (int rep = 0; rep < replicates; ++rep) {
    FreeRecombinationReplicate(n, theta, -1, s.seed, s.random, s.poisson, m);
    sumS += m.Columns();
    const double pi = PairwiseAverage(m);
    sumPi += pi;
    sumPi2 += pi * pi;
  }
  const double meanS = sumS / replicates;
  EXPECT_NEAR(meanS, theta * a1, 5.0 * std::sqrt(theta * a1 / replicates));

  double variancePi = 0.0;
  for (int k = 1; k < n; ++k) {
    const double h = k * (n - k) / (n * (n - 1) / 2.0);
    variancePi += theta * h * h / k;
  }
  const double meanPi = sumPi / replicates;
  EXPECT_NEAR(meanPi, theta, 5.0 * std::sqrt(variancePi / replicates));
  const double observedVariance = sumPi2 / replicates - meanPi * meanPi;
  // Pi is a compound Poisson sum with a near-normal spread here; the sample variance has a
  // relative standard error near sqrt(2 / R), widened threefold for the excess kurtosis.
  EXPECT_NEAR(observedVariance, variancePi, 5.0 * 3.0 * variancePi * std::sqrt(2.0 / replicates));
}

TEST(FreeRecombination, SameSeedRepeatsExactly) {
  Stream first(31337), second(31337);
  HaplotypeMatrix a, b;
  for (int rep = 0; rep < 20; ++rep) {
    FreeRecombinationReplicate(15, 3.0, -1, first.seed, first.random, first.poisson, a);
    FreeRecombinationReplicate(15, 3.0, -1, second.seed, second.random, second.poisson, b);
    ASSERT_EQ(a.Columns(), b.Columns());
    for (int c = 0; c < a.Columns(); ++c)
      for (int r = 0; r < 15; ++r) ASSERT_EQ(a.at(r, c), b.at(r, c));
  }
}

// Two sequences: every column is a singleton, one row 1 and the other 0, each row equally
// likely (the single draw j = int(2 U)).
TEST(FreeRecombination, TwoSequencesGiveSingletonColumns) {
  Stream s(5);
  HaplotypeMatrix m;
  FreeRecombinationReplicate(2, 1.0, 400, s.seed, s.random, s.poisson, m);
  int firstRow = 0;
  for (int c = 0; c < m.Columns(); ++c) {
    ASSERT_EQ(m.at(0, c) + m.at(1, c), 1);
    firstRow += m.at(0, c);
  }
  // Binomial(400, 1/2): standard deviation 10.
  EXPECT_NEAR(firstRow, 200, 50);
}

}  // namespace
}  // namespace ovelt

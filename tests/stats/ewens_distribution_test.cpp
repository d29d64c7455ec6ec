#include "stats/ewens_distribution.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <vector>

namespace ovelt {
namespace {

Decimal36 D(int64_t value) {
  return Decimal36::FromInteger(value);
}

// |a - b| relative to b.
double RelativeGap(const Decimal36& a, const Decimal36& b) {
  return std::fabs(((a - b) / b).ToDouble());
}

TEST(EwensProbabilities, FourSequencesThetaOne) {
  // |s(4, j)| = 6, 11, 6, 1 and theta (theta + 1)(theta + 2)(theta + 3) = 24 at theta = 1:
  // P(K = j) = 6/24, 11/24, 6/24, 1/24.
  const std::vector<Decimal36> p = EwensProbabilities(4, 4, 1.0);
  ASSERT_EQ(p.size(), 5U);
  EXPECT_TRUE(p[0].IsZero());
  const int64_t stirling[] = {6, 11, 6, 1};
  for (int j = 1; j <= 4; ++j) {
    EXPECT_LT(RelativeGap(p[static_cast<size_t>(j)], D(stirling[j - 1]) / D(24)), 1e-34) << j;
  }
}

TEST(EwensProbabilities, FiveSequencesThetaTwo) {
  // |s(5, j)| = 24, 50, 35, 10, 1; 2 * 3 * 4 * 5 * 6 = 720; P(K = j) = |s(5, j)| 2^j / 720.
  const std::vector<Decimal36> p = EwensProbabilities(5, 5, 2.0);
  const int64_t numerators[] = {48, 200, 280, 160, 32};
  for (int j = 1; j <= 5; ++j) {
    EXPECT_LT(RelativeGap(p[static_cast<size_t>(j)], D(numerators[j - 1]) / D(720)), 1e-34) << j;
  }
}

TEST(EwensProbabilities, OnlyTheRequestedHaplotypeCountsAreKept) {
  const std::vector<Decimal36> all = EwensProbabilities(9, 9, 1.7);
  const std::vector<Decimal36> first = EwensProbabilities(9, 4, 1.7);
  ASSERT_EQ(first.size(), 5U);
  for (size_t j = 1; j <= 4; ++j) EXPECT_EQ(first[j], all[j]) << j;
}

TEST(EwensProbabilities, SumToOneAndMeanOfTheHaplotypeCount) {
  // Sum of P(K = j) is 1, and E[K] = sum over i = 0..n-1 of theta / (theta + i) (Ewens 1972).
  const int n = 60;
  const double theta = 3.7;
  const std::vector<Decimal36> p = EwensProbabilities(n, n, theta);
  Decimal36 total, mean;
  for (int j = 1; j <= n; ++j) {
    total += p[static_cast<size_t>(j)];
    mean += p[static_cast<size_t>(j)] * D(j);
  }
  EXPECT_LT(std::fabs((total - D(1)).ToDouble()), 1e-32);
  const Decimal36 t = Decimal36::FromDouble(theta);
  Decimal36 expected_mean;
  for (int i = 0; i < n; ++i) expected_mean += t / (t + D(i));
  EXPECT_LT(RelativeGap(mean, expected_mean), 1e-31);
}

// P(K = j) by brute force over the allele configurations of the Ewens sampling formula:
// P(a_1..a_n) = n! / theta^(n) * prod over i of theta^(a_i) / (i^(a_i) a_i!), summed over the
// partitions of n into j parts.
std::vector<double> BruteForceEwens(int n, double theta) {
  std::vector<double> p(static_cast<size_t>(n) + 1, 0.0);
  double rising = 1.0, n_factorial = 1.0;
  for (int i = 0; i < n; ++i) rising *= theta + i;
  for (int i = 2; i <= n; ++i) n_factorial *= i;
  std::vector<int> counts(static_cast<size_t>(n) + 1, 0);
  std::function<void(int, int)> walk = [&](int remaining, int largest) {
    if (remaining == 0) {
      double weight = n_factorial / rising;
      int parts = 0;
      for (int i = 1; i <= n; ++i) {
        const int a = counts[static_cast<size_t>(i)];
        parts += a;
        for (int c = 1; c <= a; ++c) weight *= theta / (i * static_cast<double>(c));
      }
      p[static_cast<size_t>(parts)] += weight;
      return;
    }
    for (int size = std::min(remaining, largest); size >= 1; --size) {
      ++counts[static_cast<size_t>(size)];
      walk(remaining - size, size);
      --counts[static_cast<size_t>(size)];
    }
  };
  walk(n, n);
  return p;
}

TEST(EwensProbabilities, AgreeWithTheSamplingFormulaOverAllPartitions) {
  for (const int n : {2, 3, 6, 10, 14}) {
    for (const double theta : {0.3, 1.0, 4.25, 12.0}) {
      const std::vector<double> expected = BruteForceEwens(n, theta);
      const std::vector<Decimal36> p = EwensProbabilities(n, n, theta);
      for (int j = 1; j <= n; ++j) {
        EXPECT_NEAR(p[static_cast<size_t>(j)].ToDouble() / expected[static_cast<size_t>(j)], 1.0,
                    1e-12)
            << "n " << n << " theta " << theta << " j " << j;
      }
    }
  }
}

TEST(EwensProbabilities, TailsFarBelowTheRangeOfADouble) {
  // P(K = n) = theta^(n-1) / ((theta + 1) ... (theta + n - 1)): at n = 200, theta = 0.001 about
  // 10^-970, which a double cannot hold; its logarithm is known in closed form.
  const int n = 200;
  const double theta = 0.001;
  const std::vector<Decimal36> p = EwensProbabilities(n, n, theta);
  double log_expected = (n - 1) * std::log(theta);
  for (int i = 1; i < n; ++i) log_expected -= std::log(theta + i);
  EXPECT_EQ(p[static_cast<size_t>(n)].ToDouble(), 0.0);
  EXPECT_NEAR(p[static_cast<size_t>(n)].Ln(), log_expected, 1e-9 * std::fabs(log_expected));
  // P(K = 1) = (n - 1)! / ((theta + 1) ... (theta + n - 1)), close to 1.
  double log_first = 0.0;
  for (int i = 1; i < n; ++i) log_first += std::log(i) - std::log(theta + i);
  EXPECT_NEAR(p[1].Ln(), log_first, 1e-12);
}

TEST(EwensProbabilities, RefusesImpossibleArguments) {
  EXPECT_THROW((void)EwensProbabilities(0, 1, 1.0), std::invalid_argument);
  EXPECT_THROW((void)EwensProbabilities(4, 5, 1.0), std::invalid_argument);
  EXPECT_THROW((void)EwensProbabilities(4, 0, 1.0), std::invalid_argument);
  EXPECT_THROW((void)EwensProbabilities(4, 2, 0.0), std::invalid_argument);
  EXPECT_THROW((void)EwensProbabilities(4, 2, NAN), std::invalid_argument);
}

}  // namespace
}  // namespace ovelt

#include "stats/fs_statistic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <vector>

namespace ovelt {
namespace {

// Unsigned Stirling numbers of the first kind |s(n, j)|, j = 0..n, exact for n <= 20.
std::vector<uint64_t> StirlingRow(int n) {
  std::vector<uint64_t> row{1};
  for (int m = 1; m <= n; ++m) {
    std::vector<uint64_t> next(static_cast<size_t>(m) + 1, 0);
    for (int j = 1; j <= m; ++j) {
      const auto k = static_cast<size_t>(j);
      next[k] = (k < row.size() ? row[k] * static_cast<uint64_t>(m - 1) : 0) + row[k - 1];
    }
    row = next;
  }
  return row;
}

// ln P(K = j) = ln |s(n, j)| + j ln theta - sum over i < n of ln(theta + i).
double LogEwens(int n, int j, double theta) {
  double log_p =
      std::log(static_cast<double>(StirlingRow(n)[static_cast<size_t>(j)])) + j * std::log(theta);
  for (int i = 0; i < n; ++i) log_p -= std::log(theta + i);
  return log_p;
}

// Fs from the tail sums of a double recursion, adequate when neither tail is tiny.
double DoubleFs(int n, int h, double theta) {
  std::vector<double> row(static_cast<size_t>(n) + 1, 0.0);
  row[1] = 1.0;
  for (int m = 2; m <= n; ++m) {
    for (int j = m; j >= 1; --j) {
      const auto k = static_cast<size_t>(j);
      row[k] = (row[k] * (m - 1) + row[k - 1] * theta) / (theta + m - 1);
    }
  }
  double fewer = 0.0;
  for (int j = 1; j < h; ++j) fewer += row[static_cast<size_t>(j)];
  return std::log(1.0 - fewer) - std::log(fewer);
}

// P(K = j) summed over the allele configurations (a_1..a_n) of the Ewens sampling formula,
// P(a) = n! / theta^(n) * prod over i of (theta / i)^(a_i) / a_i!, by walking every partition of n.
std::vector<double> PartitionSums(int n, double theta) {
  std::vector<double> p(static_cast<size_t>(n) + 1, 0.0);
  double scale = 1.0;
  for (int i = 0; i < n; ++i) scale *= (i + 1) / (theta + i);
  std::vector<int> parts;
  std::function<void(int, int)> walk = [&](int remaining, int largest) {
    if (remaining == 0) {
      double weight = scale;
      size_t i = 0;
      while (i < parts.size()) {
        size_t j = i;
        while (j < parts.size() && parts[j] == parts[i]) ++j;
        for (size_t c = 1; c <= j - i; ++c) weight *= theta / (parts[i] * static_cast<double>(c));
        i = j;
      }
      p[parts.size()] += weight;
      return;
    }
    for (int size = std::min(remaining, largest); size >= 1; --size) {
      parts.push_back(size);
      walk(remaining - size, size);
      parts.pop_back();
    }
  };
  walk(n, n);
  return p;
}

TEST(FsStatistic, AgreesWithTheSumsOverAllPartitions) {
  for (const int n : {5, 8, 12}) {
    for (const double theta : {0.7, 2.9, 9.0}) {
      const std::vector<double> p = PartitionSums(n, theta);
      for (int h = 2; h <= n; ++h) {
        double fewer = 0.0, at_most = 0.0;
        for (int j = 1; j <= h; ++j) (j < h ? fewer : at_most) += p[static_cast<size_t>(j)];
        at_most += fewer;
        double at_least = 0.0;
        for (int j = h; j <= n; ++j) at_least += p[static_cast<size_t>(j)];
        const FsResult r = FsStatistic(n, h, theta);
        EXPECT_NEAR(r.Fs.value(), std::log(at_least) - std::log(fewer), 1e-9)
            << "n " << n << " theta " << theta << " h " << h;
        EXPECT_NEAR(r.StrobeckS, at_most, 1e-13);
        EXPECT_NEAR(r.PEqual, p[static_cast<size_t>(h)], 1e-13);
      }
    }
  }
}

TEST(FsStatistic, FourSequencesByHand) {
  // theta = 1, n = 4: P(K = j) = 6/24, 11/24, 6/24, 1/24. With h = 3:
  // P(K < 3) = 17/24, P(K >= 3) = 7/24, Fs = ln(7/17) = -0.88730; S = P(K <= 3) = 23/24.
  const FsResult r = FsStatistic(4, 3, 1.0);
  EXPECT_NEAR(r.Fs.value(), std::log(7.0 / 17.0), 1e-14);
  EXPECT_NEAR(r.StrobeckS, 23.0 / 24.0, 1e-15);
  EXPECT_NEAR(r.PEqual, 6.0 / 24.0, 1e-15);
  // h = 4: P(K < 4) = 23/24, Fs = ln(1/23).
  EXPECT_NEAR(FsStatistic(4, 4, 1.0).Fs.value(), std::log(1.0 / 23.0), 1e-14);
  EXPECT_NEAR(FsStatistic(4, 4, 1.0).StrobeckS, 1.0, 1e-15);
}

TEST(FsStatistic, AgreesWithADoubleComputationInTheBulk) {
  for (const int n : {10, 30, 50}) {
    for (const double theta : {1.5, 5.0, 11.3}) {
      for (int h = 2; h <= n; h += 3) {
        const double expected = DoubleFs(n, h, theta);
        // Beyond |Fs| = 10 the tail 1 - x falls below 5e-5 and a double keeps too few digits.
        if (!std::isfinite(expected) || std::fabs(expected) > 10.0) continue;
        EXPECT_NEAR(FsStatistic(n, h, theta).Fs.value(), expected, 1e-9)
            << "n " << n << " theta " << theta << " h " << h;
      }
    }
  }
}

TEST(FsStatistic, OneHaplotypeIsOutOfRange) {
  // No sample has fewer than one haplotype: x = 0.
  const FsResult r = FsStatistic(5, 1, 2.0);
  EXPECT_FALSE(r.Fs);
  EXPECT_NEAR(r.StrobeckS, 24.0 * 2.0 / 720.0, 1e-15);  // P(K = 1) = |s(5,1)| 2 / 720
}

TEST(FsStatistic, ThinLowerTailKeepsItsDigits) {
  // theta = 1e6, n = 10, h = 2: x = P(K = 1) = 9! / ((theta + 1) ... (theta + 9)), about 4e-49,
  // far below 1e-13: Fs = ln(1 - x) - ln(x) = -ln(x).
  const double theta = 1e6;
  double log_x = 0.0;
  for (int i = 1; i <= 9; ++i) log_x += std::log(static_cast<double>(i)) - std::log(theta + i);
  EXPECT_NEAR(FsStatistic(10, 2, theta).Fs.value(), -log_x, 1e-9);
}

TEST(FsStatistic, ThinUpperTailUsesTheProbabilityOfTheCount) {
  // theta = 1e-6, n = 10, h = 4: P(K >= 4) is about 2e-18, so x = P(K < 4) is above
  // 0.999999999999999 and P(K = 4) below 1e-13: Fs = ln P(K = 4) - ln x, with ln x about -2e-18.
  const double theta = 1e-6;
  EXPECT_NEAR(FsStatistic(10, 4, theta).Fs.value(), LogEwens(10, 4, theta), 1e-9);
}

TEST(FsStatistic, UpperTailNearTheDoubleLimitIsExact) {
  // theta = 1e-7, n = 10, h = 3: P(K >= 3) is about 3e-14. In a double, 1 - x would carry an
  // error of some percent; the decimal sums give it to all the digits a double shows.
  const double theta = 1e-7;
  double upper = 0.0;
  for (int j = 3; j <= 10; ++j) upper += std::exp(LogEwens(10, j, theta));
  const double expected = std::log(upper) - std::log1p(-upper);
  EXPECT_NEAR(FsStatistic(10, 3, theta).Fs.value(), expected, 1e-9);
}

TEST(FsStatistic, RefusesImpossibleArguments) {
  EXPECT_THROW((void)FsStatistic(4, 5, 1.0), std::invalid_argument);
  EXPECT_THROW((void)FsStatistic(4, 2, 0.0), std::invalid_argument);
}

}  // namespace
}  // namespace ovelt

#include "stats/fisher_exact.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// Reference computed apart from the library: every table with the margins of (a b / c d) is
// indexed by its top-left cell x, with its hypergeometric probability from std::lgamma.
// First tail: from the observed x to the end of the range in the observed direction (towards
// smaller x when ad < bc, else towards larger x). Second tail: from the other end of the range
// inward, adding tables while the sum does not exceed the first tail.
struct Reference {
  double oneTail;
  double twoTails;
};

Reference BruteForce(int a, int b, int c, int d) {
  const int row1 = a + b, col1 = a + c, n = a + b + c + d;
  const int lo = std::max(0, row1 + col1 - n);
  const int hi = std::min(row1, col1);
  auto lf = [](int v) { return std::lgamma(v + 1.0); };
  auto prob = [&](int x) {
    return std::exp(lf(row1) + lf(n - row1) + lf(col1) + lf(n - col1) - lf(n) - lf(x) -
                    lf(row1 - x) - lf(col1 - x) - lf(n - row1 - col1 + x));
  };
  const bool towardsSmaller = static_cast<long long>(a) * d < static_cast<long long>(b) * c;
  double p1 = 0.0;
  if (towardsSmaller) {
    for (int x = a; x >= lo; --x) p1 += prob(x);
  } else {
    for (int x = a; x <= hi; ++x) p1 += prob(x);
  }
  double p2 = 0.0;
  const int start = towardsSmaller ? hi : lo;
  const int step = towardsSmaller ? -1 : 1;
  for (int x = start; x >= lo && x <= hi; x += step) {
    const double p = prob(x);
    if (p2 + p > p1 && std::fabs(p2 + p - p1) >= 1e-13) break;
    p2 += p;
  }
  return {p1, std::min(1.0, p1 + p2)};
}

void ExpectMatchesBruteForce(int a, int b, int c, int d) {
  const LogFactorialTable table(a + b + c + d);
  double oneTail = -1.0;
  const float twoTails = FisherExact(a, b, c, d, oneTail, table);
  const Reference ref = BruteForce(a, b, c, d);
  EXPECT_NEAR(oneTail, ref.oneTail, 1e-10 * ref.oneTail + 1e-15)
      << a << " " << b << " " << c << " " << d;
  EXPECT_NEAR(twoTails, ref.twoTails, 1e-6 * ref.twoTails + 1e-15)
      << a << " " << b << " " << c << " " << d;
}

TEST(FisherExact, TeaTastingTable) {
  // Margins 4, 4 / 4, 4: P(x) = C(4,x) C(4,4-x) / 70. One tail 16/70 + 1/70; the other tail
  // takes x = 0 and x = 1 (1/70 + 16/70, equal to the first tail), so two tails are 34/70.
  const LogFactorialTable table(8);
  double oneTail = 0.0;
  const float twoTails = FisherExact(3, 1, 1, 3, oneTail, table);
  EXPECT_NEAR(oneTail, 17.0 / 70.0, 1e-12);
  EXPECT_NEAR(oneTail, 0.2428571, 1e-7);
  EXPECT_FLOAT_EQ(twoTails, static_cast<float>(34.0 / 70.0));
  EXPECT_NEAR(twoTails, 0.4857143, 1e-7);
}

TEST(FisherExact, NegativeAssociationByHand) {
  // (1 3 / 3 1): margins 4, 4 / 4, 4 again; observed direction towards x = 0:
  // one tail 16/70 + 1/70; the other end x = 4 (1/70), then x = 3 (16/70): 34/70.
  const LogFactorialTable table(8);
  double oneTail = 0.0;
  const float twoTails = FisherExact(1, 3, 3, 1, oneTail, table);
  EXPECT_NEAR(oneTail, 17.0 / 70.0, 1e-12);
  EXPECT_FLOAT_EQ(twoTails, static_cast<float>(34.0 / 70.0));
}

TEST(FisherExact, AgreesWithEnumerationOfTheMargins) {
  const std::vector<std::array<int, 4>> tables = {
      {3, 1, 1, 3},   {1, 9, 11, 3},      {10, 2, 3, 15},   {0, 5, 5, 0},  {2, 7, 8, 2},
      {5, 0, 1, 4},   {12, 5, 9, 7},      {20, 30, 25, 25}, {0, 10, 3, 7}, {7, 3, 10, 0},
      {1, 1, 1, 40},  {40, 1, 1, 1},      {0, 0, 4, 6},     {3, 0, 0, 0},  {6, 2, 2, 9},
      {15, 40, 3, 1}, {100, 80, 60, 120},
  };
  for (const auto& t : tables) ExpectMatchesBruteForce(t[0], t[1], t[2], t[3]);
}

TEST(FisherExact, AgreesWithEnumerationOnManySmallTables) {
  // All tables with cells 0..5 in one stride, both directions and both far extremes.
  for (int a = 0; a <= 5; ++a)
    for (int b = 0; b <= 5; b += 2)
      for (int c = 0; c <= 5; c += 3)
        for (int d = 0; d <= 5; ++d) ExpectMatchesBruteForce(a, b, c, d);
}

TEST(FisherExact, EmptyTableWithTableOfZeroIsOne) {
  const LogFactorialTable table(0);
  double oneTail = 0.0;
  EXPECT_EQ(FisherExact(0, 0, 0, 0, oneTail, table), 1.0f);
  EXPECT_EQ(oneTail, 1.0);
}

TEST(FisherExact, IndependentTableIsCappedAtOne) {
  // a d = b c: the observed table is the most probable; the tails meet and overlap.
  for (const auto& t : std::vector<std::array<int, 4>>{{2, 4, 3, 6}, {5, 5, 5, 5}, {1, 3, 2, 6}}) {
    const LogFactorialTable table(t[0] + t[1] + t[2] + t[3]);
    double oneTail = 0.0;
    EXPECT_EQ(FisherExact(t[0], t[1], t[2], t[3], oneTail, table), 1.0f);
    EXPECT_LT(oneTail, 1.0);
  }
}

TEST(FisherExact, TableTooSmallFailsWithItsMessage) {
  const LogFactorialTable table(7);
  double oneTail = 0.0;
  try {
    (void)FisherExact(3, 1, 1, 3, oneTail, table);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Error computing Fisher Exact test");
  }
}

TEST(FisherExact, NegativeCellFailsWithItsMessage) {
  const LogFactorialTable table(20);
  double oneTail = 0.0;
  try {
    (void)FisherExact(3, -1, 1, 3, oneTail, table);
    FAIL() << "no exception";
  } catch (const StatsError& e) {
    EXPECT_STREQ(e.what(), "Error computing Fisher Exact test");
  }
}

}  // namespace
}  // namespace ovelt

// The P values the pair scan keeps per margin pair against the same test worked out one table
// at a time, and against hypergeometric probabilities counted by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "analyses/linkage/pair_fisher.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

// Equal, or one float step apart where the double sum sat on a rounding boundary; returns
// whether they differ.
int CompareP(float kept, float direct) {
  if (kept == direct) return 0;
  EXPECT_EQ(std::nextafter(kept, direct), direct) << kept << " vs " << direct;
  return 1;
}

// Every table of the margins r1, c1 of total n, from the lowest a to the highest, through the
// kept P values and the direct way; returns how many differ. A first walk over the tables
// makes the margins seen often enough to be kept.
int CompareMargins(PairFisher& fisher, int n, int r1, int c1) {
  const int lowest = std::max(0, r1 + c1 - n);
  for (int a = lowest; a <= std::min(r1, c1); ++a)
    (void)fisher.TwoTailed(a, r1 - a, c1 - a, n - r1 - c1 + a);
  int differing = 0;
  for (int a = lowest; a <= std::min(r1, c1); ++a) {
    const int b = r1 - a, c = c1 - a, d = n - r1 - c1 + a;
    differing += CompareP(fisher.TwoTailed(a, b, c, d), fisher.TwoTailedDirect(a, b, c, d));
  }
  return differing;
}

TEST(PairFisherMargins, TablesCountedByHand) {
  PairFisher fisher(8);
  // Margins 4, 4 of 8: the tables a = 0..4 have the weights 1, 16, 36, 16, 1 of 70.
  // a = 4: the extreme, 1/70; the far extreme a = 0 ties with it: 2/70.
  EXPECT_FLOAT_EQ(fisher.TwoTailed(4, 0, 0, 4), static_cast<float>(2.0 / 70.0));
  EXPECT_FLOAT_EQ(fisher.TwoTailed(0, 4, 4, 0), static_cast<float>(2.0 / 70.0));
  // a = 3: 17/70 on each side, the second tail equal to the first: 34/70.
  EXPECT_FLOAT_EQ(fisher.TwoTailed(3, 1, 1, 3), static_cast<float>(34.0 / 70.0));
  EXPECT_FLOAT_EQ(fisher.TwoTailed(1, 3, 3, 1), static_cast<float>(34.0 / 70.0));
  // a = 2: 53/70 each way, capped at 1.
  EXPECT_EQ(fisher.TwoTailed(2, 2, 2, 2), 1.0f);
  // Margins 3, 2 of 8: a = 0..2 weigh 10, 15, 3 of 28 (C(3,a) C(5,2-a)). a = 2 is positive:
  // 3/28, and the far extreme a = 0 (10/28) exceeds it.
  EXPECT_FLOAT_EQ(fisher.TwoTailed(2, 1, 0, 5), static_cast<float>(3.0 / 28.0));
  // a = 0 is negative: 10/28, then 3/28 from a = 2: 13/28.
  EXPECT_FLOAT_EQ(fisher.TwoTailed(0, 3, 2, 3), static_cast<float>(13.0 / 28.0));
  EXPECT_EQ(fisher.CachedMargins(), 2);
}

TEST(PairFisherMargins, EveryTableOfSmallTotals) {
  for (const int n : {1, 2, 3, 10, 31, 64}) {
    PairFisher fisher(n);
    int differing = 0;
    for (int r1 = 0; r1 <= n; ++r1)
      for (int c1 = 0; c1 <= n; ++c1) differing += CompareMargins(fisher, n, r1, c1);
    EXPECT_LE(differing, 2) << "n " << n;
    EXPECT_EQ(fisher.CachedMargins(), (n + 1) * (n + 1));
  }
}

TEST(PairFisherMargins, RandomMarginsOfLargeTotals) {
  std::mt19937 rng(11);
  for (const int n : {500, 2000}) {
    PairFisher fisher(n);
    std::uniform_int_distribution<int> margin(0, n);
    int differing = 0;
    for (int i = 0; i < 300; ++i) differing += CompareMargins(fisher, n, margin(rng), margin(rng));
    // The margins of a scan's sites: the more frequent nucleotide first.
    std::uniform_int_distribution<int> major(n / 2, n);
    for (int i = 0; i < 300; ++i) differing += CompareMargins(fisher, n, major(rng), major(rng));
    EXPECT_LE(differing, 3) << "n " << n;
  }
}

// Margins h, h of n = 2h: the weights C(h, a)^2 / C(n, h) are symmetric about h/2, so the
// tail of a table on the positive side ties exactly with its mirror's, which the second tail
// takes in. The second tail also takes in any sum within 1e-13 of the first tail's: where the
// tails are far below that, it runs on past the mirror.
TEST(PairFisherMargins, SymmetricTablesTie) {
  for (const int n : {4, 8, 100, 500, 2000}) {
    PairFisher fisher(n);
    const int h = n / 2;
    int differing = CompareMargins(fisher, n, h, h);
    EXPECT_LE(differing, 2) << "n " << n;
    std::vector<double> weight;
    for (int a = 0; a <= h; ++a) {
      weight.push_back(
          std::exp(2 * (std::lgamma(h + 1.0) - std::lgamma(a + 1.0) - std::lgamma(h - a + 1.0)) -
                   std::lgamma(n + 1.0) + 2 * std::lgamma(h + 1.0)));
    }
    double tail = 0.0;
    for (int a = h; 2 * a > h; --a) {
      tail += weight[static_cast<std::size_t>(a)];
      double second = 0.0;
      for (const double w : weight) {
        if (second + w > tail && second + w - tail >= 1e-13) break;
        second += w;
      }
      const double expected = std::min(tail + second, 1.0);
      const float p = fisher.TwoTailed(a, h - a, h - a, a);
      EXPECT_NEAR(p, expected, expected * 1e-6) << "n " << n << " a " << a;
      if (tail > 1e-6) {
        EXPECT_NEAR(p, std::min(2 * tail, 1.0), 2 * tail * 1e-6);
      }
      // The mirror, on the negative side.
      EXPECT_EQ(fisher.TwoTailed(h - a, a, a, h - a), p) << "n " << n << " a " << a;
    }
    // The middle table when h is even: both tails hold it, so P is 1.
    if (h % 2 == 0) {
      EXPECT_EQ(fisher.TwoTailed(h / 2, h / 2, h / 2, h / 2), 1.0f);
    }
  }
}

// Margins seen less often than their tables over kTablesPerSight are worked out table by
// table; at the sight that reaches it they are kept.
TEST(PairFisherMargins, KeptOnceSeenOftenEnough) {
  const int n = 2000, h = 1000;
  PairFisher fisher(n);
  const int64_t tables = h + 1;
  const int64_t sights = (tables + PairFisher::kTablesPerSight - 1) / PairFisher::kTablesPerSight;
  ASSERT_GT(sights, 1);
  const float direct = fisher.TwoTailedDirect(520, 480, 480, 520);
  for (int64_t i = 1; i < sights; ++i) EXPECT_EQ(fisher.TwoTailed(520, 480, 480, 520), direct);
  EXPECT_EQ(fisher.CachedMargins(), 0);
  CompareP(fisher.TwoTailed(520, 480, 480, 520), direct);
  EXPECT_EQ(fisher.CachedMargins(), 1);
  // Margins with fewer tables than kTablesPerSight are kept at their first sight.
  (void)fisher.TwoTailed(5, 10, 10, n - 25);
  EXPECT_EQ(fisher.CachedMargins(), 2);
}

TEST(PairFisherMargins, MemoryBoundFallsBackToTheDirectWay) {
  std::mt19937 rng(5);
  const int n = 300;
  PairFisher none(n, 0);
  PairFisher some(n, 64 * 1024);  // a few rows and a part of a block
  PairFisher all(n);
  std::uniform_int_distribution<int> margin(0, n);
  for (int i = 0; i < 200; ++i) {
    const int r1 = margin(rng), c1 = margin(rng);
    for (int a = std::max(0, r1 + c1 - n); a <= std::min(r1, c1); ++a) {
      const int b = r1 - a, c = c1 - a, d = n - r1 - c1 + a;
      const float direct = none.TwoTailedDirect(a, b, c, d);
      EXPECT_EQ(none.TwoTailed(a, b, c, d), direct);
      // Kept or not, the same value.
      const float kept = all.TwoTailed(a, b, c, d);
      const float partly = some.TwoTailed(a, b, c, d);
      EXPECT_TRUE(partly == kept || partly == direct) << partly;
      CompareP(kept, direct);
    }
  }
  EXPECT_EQ(none.CachedMargins(), 0);
  EXPECT_GT(some.CachedMargins(), 0);
  EXPECT_LT(some.CachedMargins(), all.CachedMargins());
}

TEST(PairFisherMargins, SmallerTotalsAreWorkedOutDirectly) {
  PairFisher fisher(100);
  for (int a = 0; a <= 20; ++a) {
    EXPECT_EQ(fisher.TwoTailed(a, 20 - a, 30 - a, 10 + a),
              fisher.TwoTailedDirect(a, 20 - a, 30 - a, 10 + a));
  }
  EXPECT_EQ(fisher.CachedMargins(), 0);
}

TEST(PairFisherMargins, BadTablesThrow) {
  PairFisher fisher(10);
  EXPECT_THROW((void)fisher.TwoTailed(-1, 5, 5, 1), StatsError);
  EXPECT_THROW((void)fisher.TwoTailed(5, 5, 1, 0), StatsError);
  EXPECT_THROW((void)fisher.TwoTailedDirect(5, 5, 1, 0), StatsError);
}

}  // namespace
}  // namespace ovelt

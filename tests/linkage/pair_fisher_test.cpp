// Both ways of the pair scan's Fisher test (the P values of a margin pair worked out together,
// and one table at a time with short cuts) against the library's FisherExact, on every table of
// a few totals and on random tables of larger ones.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analyses/linkage/pair_fisher.h"
#include "stats/fisher_exact.h"
#include "stats/log_factorial.h"

namespace ovelt {
namespace {

// Equal, or one float step apart where the double sum sat on a rounding boundary.
void ExpectSameP(float fast, float reference) {
  if (fast == reference) return;
  EXPECT_EQ(std::nextafter(fast, reference), reference) << fast << " vs " << reference;
}

TEST(PairFisher, EveryTableOfSmallTotals) {
  for (const int n : {1, 2, 7, 30, 41}) {
    PairFisher fast(n);
    const LogFactorialTable lf(n);
    int differing = 0, differing_direct = 0;
    for (int a = 0; a <= n; ++a)
      for (int b = 0; a + b <= n; ++b)
        for (int c = 0; a + b + c <= n; ++c) {
          const int d = n - a - b - c;
          double one = 0.0;
          const float reference = FisherExact(a, b, c, d, one, lf);
          const float p = fast.TwoTailed(a, b, c, d);
          const float direct = fast.TwoTailedDirect(a, b, c, d);
          ExpectSameP(p, reference);
          ExpectSameP(direct, reference);
          differing += p != reference ? 1 : 0;
          differing_direct += direct != reference ? 1 : 0;
        }
    EXPECT_LE(differing, 1) << "n " << n;
    EXPECT_LE(differing_direct, 1) << "n " << n;
  }
}

TEST(PairFisher, RandomTablesOfLargeTotals) {
  std::mt19937 rng(3);
  for (const int n : {64, 500, 2000}) {
    PairFisher fast(n);
    const LogFactorialTable lf(n);
    std::uniform_int_distribution<int> cut(0, n);
    int differing = 0, differing_direct = 0;
    for (int i = 0; i < 20000; ++i) {
      int x = cut(rng), y = cut(rng), z = cut(rng);
      if (x > y) std::swap(x, y);
      if (y > z) std::swap(y, z);
      if (x > y) std::swap(x, y);
      const int a = x, b = y - x, c = z - y, d = n - z;
      double one = 0.0;
      const float reference = FisherExact(a, b, c, d, one, lf);
      const float p = fast.TwoTailed(a, b, c, d);
      const float direct = fast.TwoTailedDirect(a, b, c, d);
      ExpectSameP(p, reference);
      ExpectSameP(direct, reference);
      differing += p != reference ? 1 : 0;
      differing_direct += direct != reference ? 1 : 0;
    }
    EXPECT_LE(differing, 2) << "n " << n;
    EXPECT_LE(differing_direct, 2) << "n " << n;
  }
}

}  // namespace
}  // namespace ovelt

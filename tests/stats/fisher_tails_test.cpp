// Where the tails of Fisher's exact test run, on tables worked out by hand and on every table
// of small totals against the ends of the line of tables with the same margins.

#include "stats/fisher_tails.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ovelt {
namespace {

TEST(FisherTails, TablesByHand) {
  // 1 4 / 3 2: a d = 2 < b c = 12, the first tail runs down to a = 0; the far extreme
  // empties the smaller of b and c (c = 3): 4 1 / 0 5.
  FisherTails t = FisherTailsOf(1, 4, 3, 2);
  EXPECT_TRUE(t.NegativeAssociation);
  EXPECT_EQ(t.Steps, 1);
  EXPECT_EQ(t.Far.a, 4);
  EXPECT_EQ(t.Far.b, 1);
  EXPECT_EQ(t.Far.c, 0);
  EXPECT_EQ(t.Far.d, 5);
  EXPECT_EQ(t.Inward, -1);
  EXPECT_EQ(t.FarMoves, 4);  // down to 0 5 / 4 1

  // 5 1 / 2 4: positive, up by min(b, c) = 1 to 6 0 / 1 5; the far extreme empties d at a = 1
  // (a = 5 > d = 4): 1 5 / 6 0, and walks up 5 moves to 6 0 / 1 5.
  t = FisherTailsOf(5, 1, 2, 4);
  EXPECT_FALSE(t.NegativeAssociation);
  EXPECT_EQ(t.Steps, -1);
  EXPECT_EQ(t.Far.a, 1);
  EXPECT_EQ(t.Far.b, 5);
  EXPECT_EQ(t.Far.c, 6);
  EXPECT_EQ(t.Far.d, 0);
  EXPECT_EQ(t.Inward, 1);
  EXPECT_EQ(t.FarMoves, 5);

  // No association counts as positive.
  t = FisherTailsOf(2, 2, 2, 2);
  EXPECT_FALSE(t.NegativeAssociation);
  EXPECT_EQ(t.Steps, -2);
  EXPECT_EQ(t.Far.a, 0);
}

TEST(FisherTails, EndsOfEveryTableOfSmallTotals) {
  for (int n = 0; n <= 12; ++n)
    for (int a = 0; a <= n; ++a)
      for (int b = 0; a + b <= n; ++b)
        for (int c = 0; a + b + c <= n; ++c) {
          const int d = n - a - b - c;
          const int r1 = a + b, c1 = a + c;
          const int lowest = std::max(0, r1 + c1 - n), highest = std::min(r1, c1);
          const FisherTails t = FisherTailsOf(a, b, c, d);
          const bool negative = a * d < b * c;
          EXPECT_EQ(t.NegativeAssociation, negative);
          // The first tail ends at the low end of a when negative, at the high end otherwise.
          EXPECT_EQ(a - t.Steps, negative ? lowest : highest);
          // The far extreme is the other end, with the observed margins.
          EXPECT_EQ(t.Far.a, negative ? highest : lowest);
          EXPECT_EQ(t.Far.a + t.Far.b, r1);
          EXPECT_EQ(t.Far.a + t.Far.c, c1);
          EXPECT_EQ(t.Far.a + t.Far.b + t.Far.c + t.Far.d, n);
          // Walking inward covers every table of the margins.
          EXPECT_EQ(t.Far.a + t.FarMoves * t.Inward, negative ? lowest : highest);
        }
}

}  // namespace
}  // namespace ovelt

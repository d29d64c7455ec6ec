#include "analyses/polymorphism/common/pairwise_counts.h"

#include <gtest/gtest.h>

#include <random>

#include "core/random_alignment.h"
#include "poly_fixture.h"

namespace ovelt {
namespace {

TEST(PairwiseDifferences, HandWorkedAlignment) {
  const auto ad = test::Selected(test::HandRows());
  const PairCounts d = PairwiseDifferences(ad, 1, 9);
  const int expected[6][6] = {{0},
                              {0, 0, 2, 3, 3, 3},
                              {0, 2, 0, 2, 3, 3},
                              {0, 3, 2, 0, 2, 2},
                              {0, 3, 3, 2, 0, 2},
                              {0, 3, 3, 2, 2, 0}};
  for (int i = 1; i <= 5; ++i)
    for (int j = 1; j <= 5; ++j)
      if (i != j) {
        EXPECT_EQ(d.at(i, j), expected[i][j]) << i << "," << j;
      }
}

TEST(PairwiseDifferences, AgreeWithTheCellByCellCountOnRandomAlignments) {
  std::mt19937 rng(5);
  for (int round = 0; round < 25; ++round) {
    const int n = 2 + round % 15;
    const int sites = 20 + round * 7;
    const auto ad = test::Selected(test::RandomRows(rng, n, sites, "ACGT-?"));
    const PairCounts d = PairwiseDifferences(ad, 1, sites);
    for (int i = 1; i <= n; ++i)
      for (int j = i + 1; j <= n; ++j) {
        ASSERT_EQ(d.at(i, j), test::PlainDifferences(ad, i, j, 1, sites)) << "round " << round;
        ASSERT_EQ(d.at(j, i), d.at(i, j));
      }
  }
}

// Every rule over every column, against the sum of the rule over each pair.
TEST(PairCounts, AnyRuleAgreesWithThePlainSumOverPairs) {
  std::mt19937 rng(11);
  std::uniform_int_distribution<int> code(0, 4), value(-3, 3), skew(0, 9);
  for (int round = 0; round < 20; ++round) {
    const int n = 2 + round % 17;
    PairRule rule{};
    for (int a = 0; a < 5; ++a)
      for (int b = a; b < 5; ++b) rule[a][b] = rule[b][a] = static_cast<int8_t>(value(rng));
    PairCounts counts(n);
    std::vector<std::vector<uint8_t>> columns;
    for (int c = 0; c < 40; ++c) {
      std::vector<uint8_t> col(static_cast<size_t>(n));
      const auto common = static_cast<uint8_t>(code(rng));
      for (auto& x : col) x = skew(rng) < 7 ? common : static_cast<uint8_t>(code(rng));
      counts.AddColumn(col.data(), rule);
      columns.push_back(col);
    }
    counts.Finish();
    for (int i = 1; i <= n; ++i)
      for (int j = i + 1; j <= n; ++j) {
        int64_t plain = 0;
        for (const auto& col : columns) plain += rule[col[i - 1]][col[j - 1]];
        ASSERT_EQ(counts.at(i, j), plain) << "round " << round;
      }
  }
}

TEST(CellCodes, NucleotidesAndMissing) {
  EXPECT_EQ(CellCode('A'), 0);
  EXPECT_EQ(CellCode('C'), 1);
  EXPECT_EQ(CellCode('G'), 2);
  EXPECT_EQ(CellCode('T'), 3);
  EXPECT_EQ(CellCode('-'), kCodeMissing);
  EXPECT_EQ(CellCode('?'), kCodeMissing);
  EXPECT_EQ(DiffersRule()[0][1], 1);
  EXPECT_EQ(DiffersRule()[2][2], 0);
  EXPECT_EQ(DiffersRule()[0][kCodeMissing], 0);
  EXPECT_EQ(EitherMissingRule()[kCodeMissing][1], 1);
  EXPECT_EQ(EitherMissingRule()[3][1], 0);
}

}  // namespace
}  // namespace ovelt

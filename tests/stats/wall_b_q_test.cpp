#include "stats/wall_b_q.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <set>
#include <utility>

#include "binary_matrix_fixture.h"

namespace ovelt {
namespace {

using test::BinaryMatrix;

TEST(WallFromColumns, AllAdjacentPairsCongruent) {
  // Columns 1100, 0011 (the complement), 1100: two congruent pairs in one run.
  const BinaryMatrix m = BinaryMatrix::FromRows({"101", "101", "010", "010"});
  const WallBQ w = WallFromColumns(m.View());
  EXPECT_DOUBLE_EQ(w.B.value(), 2.0 / 2.0);
  EXPECT_DOUBLE_EQ(w.Q.value(), (2.0 + 1.0) / 3.0);
}

TEST(WallFromColumns, NoCongruentPair) {
  // Columns 1000, 0100, 0010: no two split the sequences alike.
  const BinaryMatrix m = BinaryMatrix::FromRows({"100", "010", "001", "000"});
  const WallBQ w = WallFromColumns(m.View());
  EXPECT_EQ(w.B.value(), 0.0);
  EXPECT_EQ(w.Q.value(), 0.0);
}

TEST(WallFromColumns, TwoRunsOfCongruentPairs) {
  // Columns A, A, A', B, B, C with A = 11000, A' its complement, B = 10100, C = 01100:
  // pairs congruent, congruent, no, congruent, no. B' = 3 in 2 runs, S = 6.
  const BinaryMatrix m =
      BinaryMatrix::FromRows({"110110", "110001", "001111", "001000", "001000"});
  const WallBQ w = WallFromColumns(m.View());
  EXPECT_DOUBLE_EQ(w.B.value(), 3.0 / 5.0);
  EXPECT_DOUBLE_EQ(w.Q.value(), (3.0 + 2.0) / 6.0);
}

TEST(WallFromColumns, RunOpenAtTheLastColumnCounts) {
  // Columns 1000, 0100, 0100, 1011: pairs no, congruent, congruent; one run closed by the end.
  const BinaryMatrix m = BinaryMatrix::FromRows({"1001", "0110", "0001", "0001"});
  const WallBQ w = WallFromColumns(m.View());
  EXPECT_DOUBLE_EQ(w.B.value(), 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(w.Q.value(), (2.0 + 1.0) / 4.0);
}

TEST(WallFromColumns, FewerThanTwoColumnsDetermineNothing) {
  const BinaryMatrix none(5, 0);
  const BinaryMatrix one = BinaryMatrix::FromRows({"1", "0"});
  for (const BinaryMatrix* m : {&none, &one}) {
    const WallBQ w = WallFromColumns(m->View());
    EXPECT_FALSE(w.B);
    EXPECT_FALSE(w.Q);
  }
}

// Two segregating columns are congruent when the sequences show exactly two of the four
// two-site haplotypes; B' and the runs counted that way.
std::pair<int32_t, int32_t> CongruentPairsAndRuns(const BinaryMatrix& m) {
  int32_t congruent = 0, runs = 0;
  bool open = false;
  for (int32_t a = 0; a + 1 < m.Columns(); ++a) {
    std::set<std::pair<int, int>> haplotypes;
    for (int32_t r = 0; r < m.Rows(); ++r) haplotypes.insert({m.Get(r, a), m.Get(r, a + 1)});
    if (haplotypes.size() == 2) {
      ++congruent;
      if (!open) ++runs;
      open = true;
    } else {
      open = false;
    }
  }
  return {congruent, runs};
}

TEST(WallFromColumns, AgreesWithTheCountOfTwoSiteHaplotypes) {
  std::mt19937 rng(1999);
  std::bernoulli_distribution keep_partition(0.5);
  std::bernoulli_distribution bit(0.5);
  for (int trial = 0; trial < 200; ++trial) {
    const int32_t n = 3 + trial % 9;
    const int32_t s = 2 + trial % 13;
    // Each column copies or complements the one before it half of the time, so that runs of
    // congruent pairs are common; every column is made to vary.
    BinaryMatrix m(n, s);
    for (int32_t c = 0; c < s; ++c) {
      const bool copy = c > 0 && keep_partition(rng);
      const bool complement = bit(rng);
      for (int32_t r = 0; r < n; ++r) {
        const int16_t v = copy ? m.Get(r, c - 1) : static_cast<int16_t>(bit(rng));
        m.Set(r, c, static_cast<int16_t>(complement ? 1 - v : v));
      }
      m.Set(0, c, static_cast<int16_t>(1 - m.Get(1, c)));
    }
    const auto [congruent, runs] = CongruentPairsAndRuns(m);
    const WallBQ w = WallFromColumns(m.View());
    EXPECT_DOUBLE_EQ(w.B.value(), static_cast<double>(congruent) / (s - 1));
    EXPECT_DOUBLE_EQ(w.Q.value(), static_cast<double>(congruent + runs) / s);
  }
}

}  // namespace
}  // namespace ovelt

#include "stats/minimum_recombination.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "binary_matrix_fixture.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

using test::BinaryMatrix;

// Pairs of columns whose sequences show all four two-site gametes, counted one by one, in scan
// order, as positions.
std::vector<SiteInterval> FourGametePairsByHand(const BinaryMatrix& m,
                                                const std::vector<int32_t>& positions) {
  std::vector<SiteInterval> out;
  for (int32_t a = 0; a < m.Columns(); ++a)
    for (int32_t b = a + 1; b < m.Columns(); ++b) {
      std::set<std::pair<int, int>> gametes;
      for (int32_t r = 0; r < m.Rows(); ++r) gametes.insert({m.Get(r, a), m.Get(r, b)});
      if (gametes.size() == 4)
        out.push_back({positions[static_cast<std::size_t>(a)],
                       positions[static_cast<std::size_t>(b)]});
    }
  return out;
}

// The two reductions of Hudson and Kaplan (1985) pair by pair, with removal flags, the tests in
// this order and the early exit from the inner loop.
std::vector<SiteInterval> PairwiseReductions(const std::vector<SiteInterval>& list) {
  std::vector<bool> removed(list.size(), false);
  for (std::size_t p = 0; p < list.size(); ++p) {
    if (removed[p]) continue;
    for (std::size_t q = p + 1; q < list.size(); ++q) {
      if (removed[q]) continue;
      if (list[p].Low >= list[q].Low && list[p].High <= list[q].High) {
        removed[q] = true;
      } else if (list[q].Low >= list[p].Low && list[q].High <= list[p].High) {
        removed[p] = true;
        break;
      }
    }
  }
  std::vector<SiteInterval> first;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (!removed[i]) first.push_back(list[i]);
  removed.assign(first.size(), false);
  for (std::size_t p = 0; p < first.size(); ++p) {
    if (removed[p]) continue;
    for (std::size_t q = p + 1; q < first.size(); ++q) {
      if (removed[q]) continue;
      if (first[p].Low < first[q].Low && first[p].High > first[q].Low) {
        removed[q] = true;
      } else if (first[q].Low < first[p].Low && first[p].Low < first[q].High) {
        removed[p] = true;
        break;
      }
    }
  }
  std::vector<SiteInterval> second;
  for (std::size_t i = 0; i < first.size(); ++i)
    if (!removed[i]) second.push_back(first[i]);
  return second;
}

// The largest number of four-gamete intervals that can be chosen with no two overlapping (they
// may share an end site), by trying every subset: an independent bound that the reductions reach.
int32_t MostDisjointIntervals(const std::vector<SiteInterval>& list) {
  int32_t best = 0;
  const std::size_t count = list.size();
  for (uint32_t subset = 0; subset < (1u << count); ++subset) {
    std::vector<SiteInterval> chosen;
    for (std::size_t i = 0; i < count; ++i)
      if (subset & (1u << i)) chosen.push_back(list[i]);
    bool disjoint = true;
    for (std::size_t i = 0; i < chosen.size() && disjoint; ++i)
      for (std::size_t j = i + 1; j < chosen.size() && disjoint; ++j)
        disjoint = chosen[i].High <= chosen[j].Low || chosen[j].High <= chosen[i].Low;
    if (disjoint) best = std::max(best, static_cast<int32_t>(chosen.size()));
  }
  return best;
}

std::vector<int32_t> ColumnNumbers(int32_t columns) {
  std::vector<int32_t> positions(static_cast<std::size_t>(columns));
  for (int32_t j = 0; j < columns; ++j) positions[static_cast<std::size_t>(j)] = j;
  return positions;
}

TEST(MinimumRecombination, TreeCompatibleSitesGiveZero) {
  // Columns 1100, 1000, 0011: at most three gametes in every pair.
  const BinaryMatrix m = BinaryMatrix::FromRows({"110", "100", "001", "001"});
  const MinimumRecombinationResult r = MinimumRecombination(std::vector<int32_t>{5, 9, 12}, m.View());
  EXPECT_EQ(r.Rm, 0);
  EXPECT_TRUE(r.FourGametePairs.empty());
  EXPECT_TRUE(r.Intervals.empty());
  EXPECT_EQ(RmFromColumns(m.View()), 0);
}

TEST(MinimumRecombination, OnePairWithFourGametes) {
  const BinaryMatrix m = BinaryMatrix::FromRows({"00", "01", "10", "11"});
  const MinimumRecombinationResult r = MinimumRecombination(std::vector<int32_t>{3, 40}, m.View());
  EXPECT_EQ(r.Rm, 1);
  EXPECT_EQ(r.FourGametePairs, (std::vector<SiteInterval>{{3, 40}}));
  EXPECT_EQ(r.Intervals, (std::vector<SiteInterval>{{3, 40}}));
  EXPECT_EQ(RmFromColumns(m.View()), 1);
}

TEST(MinimumRecombination, TouchingIntervalsBothStay) {
  // Columns 0011, 0101, 0110: every pair has four gametes. (10, 30) contains (10, 20) and goes;
  // (10, 20) and (20, 30) only touch.
  const BinaryMatrix m = BinaryMatrix::FromRows({"000", "011", "101", "110"});
  const MinimumRecombinationResult r =
      MinimumRecombination(std::vector<int32_t>{10, 20, 30}, m.View());
  EXPECT_EQ(r.FourGametePairs, (std::vector<SiteInterval>{{10, 20}, {10, 30}, {20, 30}}));
  EXPECT_EQ(r.Intervals, (std::vector<SiteInterval>{{10, 20}, {20, 30}}));
  EXPECT_EQ(r.Rm, 2);
  EXPECT_EQ(RmFromColumns(m.View()), 2);
}

TEST(MinimumRecombination, OverlapKeepsTheFirstInterval) {
  // Four-gamete pairs (100, 300), (100, 400), (200, 400): the second contains the first and
  // goes; (200, 400) starts inside (100, 300) and goes.
  const BinaryMatrix m =
      BinaryMatrix::FromRows({"0101", "1001", "1110", "1000", "0110", "0110"});
  const MinimumRecombinationResult r =
      MinimumRecombination(std::vector<int32_t>{100, 200, 300, 400}, m.View());
  EXPECT_EQ(r.FourGametePairs,
            (std::vector<SiteInterval>{{100, 300}, {100, 400}, {200, 400}}));
  EXPECT_EQ(r.Intervals, (std::vector<SiteInterval>{{100, 300}}));
  EXPECT_EQ(r.Rm, 1);
  EXPECT_EQ(RmFromColumns(m.View()), 1);
}

TEST(MinimumRecombination, StatesAreReadAgainstTheFirstSequence) {
  // Any two-state coding: here nucleotide codes 2 and 3 in place of 0 and 1.
  BinaryMatrix m = BinaryMatrix::FromRows({"00", "01", "10", "11"});
  for (int32_t r = 0; r < 4; ++r)
    for (int32_t c = 0; c < 2; ++c) m.Set(r, c, static_cast<int16_t>(m.Get(r, c) + 2));
  EXPECT_EQ(MinimumRecombination(std::vector<int32_t>{1, 2}, m.View()).Rm, 1);
  EXPECT_EQ(RmFromColumns(m.View()), 1);
}

TEST(MinimumRecombination, FewerThanTwoSitesGiveZero) {
  const BinaryMatrix none(4, 0);
  const BinaryMatrix one = BinaryMatrix::FromRows({"1", "0", "1"});
  EXPECT_EQ(MinimumRecombination(std::vector<int32_t>{}, none.View()).Rm, 0);
  EXPECT_EQ(MinimumRecombination(std::vector<int32_t>{7}, one.View()).Rm, 0);
  EXPECT_EQ(RmFromColumns(none.View()), 0);
  EXPECT_EQ(RmFromColumns(one.View()), 0);
}

TEST(MinimumRecombination, PositionsMustMatchAndAscend) {
  const BinaryMatrix m = BinaryMatrix::FromRows({"00", "01", "10", "11"});
  EXPECT_THROW((void)MinimumRecombination(std::vector<int32_t>{1}, m.View()), StatsError);
  EXPECT_THROW((void)MinimumRecombination(std::vector<int32_t>{4, 4}, m.View()), StatsError);
  EXPECT_THROW((void)MinimumRecombination(std::vector<int32_t>{5, 4}, m.View()), StatsError);
}

TEST(MinimumRecombination, SmallRandomMatricesAgreeWithThePairwiseProcedure) {
  std::mt19937 rng(1985);
  std::uniform_int_distribution<int32_t> gap(1, 5);
  int32_t with_recombination = 0;
  for (int trial = 0; trial < 400; ++trial) {
    const int32_t n = 4 + trial % 7;
    const int32_t s = 2 + trial % 6;
    const BinaryMatrix m = BinaryMatrix::Random(n, s, 0.4, rng);
    std::vector<int32_t> positions(static_cast<std::size_t>(s));
    int32_t at = 0;
    for (int32_t& p : positions) p = at += gap(rng);

    const std::vector<SiteInterval> pairs = FourGametePairsByHand(m, positions);
    const std::vector<SiteInterval> survivors = PairwiseReductions(pairs);
    const MinimumRecombinationResult r = MinimumRecombination(positions, m.View());
    EXPECT_EQ(r.FourGametePairs, pairs);
    EXPECT_EQ(r.Intervals, survivors);
    EXPECT_EQ(r.Rm, static_cast<int32_t>(survivors.size()));
    EXPECT_EQ(RmFromColumns(m.View()), r.Rm);
    if (pairs.size() <= 10) {
      EXPECT_EQ(r.Rm, MostDisjointIntervals(pairs));
    }
    if (r.Rm > 1) ++with_recombination;
  }
  // The draw must exercise the reductions, not only the empty case.
  EXPECT_GT(with_recombination, 50);
}

TEST(MinimumRecombination, LargeRandomMatricesAgreeWithThePairwiseProcedure) {
  std::mt19937 rng(2026);
  for (const int32_t n : {63, 64, 65, 200}) {
    for (const double ones : {0.02, 0.1, 0.5}) {
      const BinaryMatrix m = BinaryMatrix::Random(n, 40, ones, rng);
      const std::vector<int32_t> positions = ColumnNumbers(40);
      const std::vector<SiteInterval> pairs = FourGametePairsByHand(m, positions);
      const MinimumRecombinationResult r = MinimumRecombination(positions, m.View());
      EXPECT_EQ(r.FourGametePairs, pairs);
      EXPECT_EQ(r.Intervals, PairwiseReductions(pairs));
      EXPECT_EQ(RmFromColumns(m.View()), r.Rm);
    }
  }
}

}  // namespace
}  // namespace ovelt

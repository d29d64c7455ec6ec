#include "analyses/recombination/interval_reductions.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <stdexcept>
#include <vector>

#include "analyses/recombination/four_gametes.h"
#include "core/alignment_fixture.h"
#include "stats/minimum_recombination.h"

namespace ovelt {
namespace {

using Intervals = std::vector<SiteInterval>;

// The reductions as stated, pair by pair with their early exits: the plain twin of the linear
// walks.
Intervals PairwiseContainment(const Intervals& list) {
  std::vector<bool> removed(list.size(), false);
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (removed[i]) continue;
    for (std::size_t j = i + 1; j < list.size(); ++j) {
      if (removed[j]) continue;
      const SiteInterval& p = list[i];
      const SiteInterval& q = list[j];
      if (p.Low >= q.Low && p.High <= q.High) {
        removed[j] = true;
        continue;
      }
      if (q.Low >= p.Low && q.High <= p.High) {
        removed[i] = true;
        break;
      }
    }
  }
  Intervals kept;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (!removed[i]) kept.push_back(list[i]);
  return kept;
}

Intervals PairwiseOverlap(const Intervals& list) {
  std::vector<bool> removed(list.size(), false);
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (removed[i]) continue;
    for (std::size_t j = i + 1; j < list.size(); ++j) {
      if (removed[j]) continue;
      const SiteInterval& p = list[i];
      const SiteInterval& q = list[j];
      if (p.Low < q.Low && p.High > q.Low) {
        removed[j] = true;
        continue;
      }
      if (q.Low < p.Low && p.Low < q.High) {
        removed[i] = true;
        break;
      }
    }
  }
  Intervals kept;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (!removed[i]) kept.push_back(list[i]);
  return kept;
}

TEST(IntervalReductions, WorkedExample) {
  // The pairs of the worked example (rm_example.h), reduced by hand there.
  const Intervals pairs = {{1, 6}, {1, 9}, {3, 5}, {3, 7}, {5, 7}, {6, 9}};
  const Intervals first = DropContainingIntervals(pairs);
  EXPECT_EQ(first, (Intervals{{3, 5}, {5, 7}, {6, 9}}));
  EXPECT_EQ(DropOverlappingIntervals(first), (Intervals{{3, 5}, {5, 7}}));
}

TEST(IntervalReductions, NestedChainKeepsTheInnermost) {
  // (1,10) contains (2,9) contains (3,8) contains (4,5): only (4,5) stays.
  const Intervals pairs = {{1, 10}, {2, 9}, {3, 8}, {4, 5}};
  EXPECT_EQ(DropContainingIntervals(pairs), (Intervals{{4, 5}}));
}

TEST(IntervalReductions, OverlapChainKeepsEveryOther) {
  // (1,3) drops (2,4); (3,5) touches (1,3) and stays, then drops (4,6).
  const Intervals list = {{1, 3}, {2, 4}, {3, 5}, {4, 6}};
  EXPECT_EQ(DropContainingIntervals(list), list);
  EXPECT_EQ(DropOverlappingIntervals(list), (Intervals{{1, 3}, {3, 5}}));
}

TEST(IntervalReductions, EmptyAndSingle) {
  EXPECT_TRUE(DropContainingIntervals({}).empty());
  EXPECT_TRUE(DropOverlappingIntervals({}).empty());
  EXPECT_EQ(DropOverlappingIntervals(DropContainingIntervals({{4, 7}})), (Intervals{{4, 7}}));
}

TEST(IntervalReductions, RefuseAListOutOfScanOrder) {
  EXPECT_THROW((void)DropContainingIntervals({{3, 5}, {1, 6}}), std::invalid_argument);
  EXPECT_THROW((void)DropContainingIntervals({{1, 6}, {1, 5}}), std::invalid_argument);
  EXPECT_THROW((void)DropOverlappingIntervals({{3, 5}, {3, 6}}), std::invalid_argument);
}

// Random alignments of two-state sites: the four-gamete pairs in scan order, reduced by the
// linear walks, by the pairwise procedure, and counted by the Rm of the simulations.
TEST(IntervalReductions, AgreeWithThePairwiseProcedureOnRandomData) {
  std::mt19937 rng(11);
  for (int round = 0; round < 300; ++round) {
    const int seqs = 3 + static_cast<int>(rng() % 8);
    const int sites = 2 + static_cast<int>(rng() % 25);
    std::vector<std::string> rows(static_cast<std::size_t>(seqs), std::string(static_cast<std::size_t>(sites), 'A'));
    for (auto& row : rows)
      for (auto& cell : row)
        if (rng() % 3 == 0) cell = 'G';
    const ActiveData ad = test::MakeAlignment(rows);
    const Selection sel = SelectOneSet(ad, 0, {1, sites});
    const FourGameteTable table = FourGametePairs(sel, 1, sites);
    const Intervals first = DropContainingIntervals(table.Pairs);
    ASSERT_EQ(first, PairwiseContainment(table.Pairs)) << "round " << round;
    const Intervals second = DropOverlappingIntervals(first);
    ASSERT_EQ(second, PairwiseOverlap(first)) << "round " << round;

    // The same sites as a 0/1 matrix for the simulations' Rm.
    std::vector<int16_t> cells;
    for (const int32_t site : table.Sites)
      for (int q = 0; q < seqs; ++q)
        cells.push_back(rows[static_cast<std::size_t>(q)][static_cast<std::size_t>(site - 1)] == 'G' ? 1 : 0);
    const BinaryColumnsView view{cells.data(), seqs, static_cast<int32_t>(table.Sites.size())};
    const MinimumRecombinationResult other = MinimumRecombination(table.Sites, view);
    EXPECT_EQ(other.FourGametePairs, table.Pairs) << "round " << round;
    EXPECT_EQ(other.Intervals, second) << "round " << round;
  }
}

}  // namespace
}  // namespace ovelt

#include "coalescent/replicate_tails.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "coalescent/coalescent_random.h"

namespace ovelt {
namespace {

std::vector<double> Draws(int count, int32_t seed) {
  CoalescentRandom random(seed);
  std::vector<double> v;
  for (int i = 0; i < count; ++i) v.push_back(static_cast<int>(random.U() * 50));  // with ties
  return v;
}

TEST(ReplicateTails, KeepTheKSmallestAscendingAndTheKLargestDescending) {
  const std::vector<double> values = Draws(300, -4);
  for (const int32_t k : {1, 2, 7, 300}) {
    ReplicateTails tails(k);
    for (const double v : values) tails.File(v, 20.0);
    std::vector<double> sorted = values;
    std::sort(sorted.begin(), sorted.end());
    for (int32_t i = 1; i <= k; ++i) {
      EXPECT_EQ(tails.Low(i), sorted[static_cast<size_t>(i - 1)]);
      EXPECT_EQ(tails.High(i), sorted[sorted.size() - static_cast<size_t>(i)]);
    }
    EXPECT_EQ(tails.AtMostObserved(), std::count_if(values.begin(), values.end(),
                                                    [](double v) { return v <= 20.0; }));
  }
}

TEST(ReplicateTails, BeforeKValuesTheLowTailHoldsThemAsFiledAndTheHighTailZeros) {
  ReplicateTails tails(5);
  tails.File(3.0, 0.0);
  tails.File(-1.0, 0.0);
  EXPECT_EQ(tails.Low(1), 3.0);
  EXPECT_EQ(tails.Low(2), -1.0);
  EXPECT_EQ(tails.Low(5), 0.0);
  EXPECT_EQ(tails.High(5), 0.0);
  EXPECT_EQ(tails.AtMostObserved(), 1);
  EXPECT_EQ(tails.Sum(), 2.0);
}

TEST(ReplicateTails, MergedBlocksEqualOneTailOverAllValues) {
  const std::vector<double> values = Draws(1000, -8);
  for (const int32_t k : {1, 5, 40}) {
    ReplicateTails whole(k);
    std::vector<ReplicateTails> blocks;
    for (size_t b = 0; b < values.size(); b += 150) {
      blocks.emplace_back(k);
      for (size_t i = b; i < std::min(values.size(), b + 150); ++i) {
        whole.File(values[i], 10.0);
        blocks.back().File(values[i], 10.0);
      }
    }
    const ReplicateTails merged = ReplicateTails::Merge(blocks, k);
    EXPECT_EQ(merged.Filed(), whole.Filed());
    EXPECT_EQ(merged.AtMostObserved(), whole.AtMostObserved());
    EXPECT_DOUBLE_EQ(merged.Sum(), whole.Sum());
    for (int32_t i = 1; i <= k; ++i) {
      EXPECT_EQ(merged.Low(i), whole.Low(i));
      EXPECT_EQ(merged.High(i), whole.High(i));
    }
  }
}

TEST(ReplicateTails, MergingFewerValuesThanKKeepsThemAll) {
  std::vector<ReplicateTails> blocks(2, ReplicateTails(10));
  blocks[0].File(4.0, 0.0);
  blocks[0].File(1.0, 0.0);
  blocks[1].File(3.0, 0.0);
  const ReplicateTails merged = ReplicateTails::Merge(blocks, 10);
  EXPECT_EQ(merged.Filed(), 3);
  EXPECT_EQ(merged.Low(1), 1.0);
  EXPECT_EQ(merged.Low(2), 3.0);
  EXPECT_EQ(merged.Low(3), 4.0);
}

}  // namespace
}  // namespace ovelt

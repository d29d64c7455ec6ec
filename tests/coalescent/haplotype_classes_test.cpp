#include "coalescent/haplotype_classes.h"

#include <gtest/gtest.h>

#include <vector>

namespace ovelt {
namespace {

// Five sequences with haplotypes A, B, A, C, B, written as their pair differences.
PairDifferenceTable FiveSequences() {
  const std::vector<char> haplotype = {'A', 'B', 'A', 'C', 'B'};
  // Differences between distinct haplotypes: A-B 1, A-C 2, B-C 3.
  auto distance = [](char x, char y) {
    if (x == y) return 0;
    if ((x == 'A' && y == 'B') || (x == 'B' && y == 'A')) return 1;
    if ((x == 'A' && y == 'C') || (x == 'C' && y == 'A')) return 2;
    return 3;
  };
  PairDifferenceTable t;
  t.Allocate(5);
  for (int32_t i = 0; i < 5; ++i)
    for (int32_t j = i + 1; j < 5; ++j)
      t.Cells[static_cast<size_t>(i * 5 + j)] =
          distance(haplotype[static_cast<size_t>(i)], haplotype[static_cast<size_t>(j)]);
  return t;
}

TEST(HaplotypePartition, CountsClassesAndDiversity) {
  std::vector<int32_t> first, sizes;
  const HaplotypeClasses c = HaplotypePartition(FiveSequences(), first, sizes);
  EXPECT_EQ(c.h, 3);
  EXPECT_EQ(first, (std::vector<int32_t>{0, 1, 3}));
  EXPECT_EQ(sizes, (std::vector<int32_t>{2, 2, 1}));
  // Hd = (1 - (0.16 + 0.16 + 0.04)) x 5 / 4 = 0.8.
  EXPECT_NEAR(c.Hd, 0.8, 1e-12);
}

TEST(HaplotypePartition, IdenticalSequencesAreOneHaplotypeOfNoDiversity) {
  PairDifferenceTable t;
  t.Allocate(4);
  std::vector<int32_t> first, sizes;
  const HaplotypeClasses c = HaplotypePartition(t, first, sizes);
  EXPECT_EQ(c.h, 1);
  EXPECT_EQ(c.Hd, 0.0);
}

TEST(MismatchHistogram, CountsThePairsByDifferences) {
  // Pairs: (0,1)1 (0,2)0 (0,3)2 (0,4)1 (1,2)1 (1,3)3 (1,4)0 (2,3)2 (2,4)1 (3,4)3.
  std::vector<int32_t> histogram;
  MismatchHistogram(FiveSequences(), histogram);
  EXPECT_EQ(histogram, (std::vector<int32_t>{2, 4, 2, 2}));
}

}  // namespace
}  // namespace ovelt

#include "coalescent/haplotype_from_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "coalescent/genealogy.h"
#include "coalescent/leaf_order.h"
#include "tree_walkers.h"

namespace ovelt {
namespace {

std::vector<int16_t> ColumnOf(const HaplotypeMatrix& m, int32_t j) {
  return {m.Column(j), m.Column(j) + m.Rows()};
}

TEST(HaplotypeMatrixFromTree, ColumnsGoByNodeWithTheSequencesBelowTheBranch) {
  const int32_t n = 12;
  Genealogy g;
  g.Allocate(n);
  LeafOrder leaves;
  leaves.Allocate(n);
  HaplotypeMatrix m;
  CoalescentRandom random(-123);
  for (int rep = 0; rep < 30; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    const int32_t s = PoissonMutations(g, 10.0, random);
    leaves.Build(g);
    HaplotypeMatrixFromTree(g, leaves, m);
    ASSERT_EQ(m.Rows(), n);
    ASSERT_EQ(m.Columns(), s);
    int32_t c = 0;
    for (int32_t i = 0; i < g.Root(); ++i) {
      for (int32_t k = 0; k < g.BranchMutations[static_cast<size_t>(i)]; ++k, ++c) {
        for (int32_t row = 0; row < n; ++row)
          ASSERT_EQ(m.at(row, c), testing::DescendsFrom(g, row, i) ? 1 : 0);
      }
    }
  }
}

TEST(ColumnsInRegionOrder, KeepsTheColumnsAndDrawsOneSitePerColumn) {
  const int32_t n = 10;
  Genealogy g;
  g.Allocate(n);
  LeafOrder leaves;
  leaves.Allocate(n);
  HaplotypeMatrix m;
  ColumnOrderScratch scratch;
  CoalescentRandom random(-5);
  MakeTree(g, random);
  MakeTimes(g, random);
  FixedMutations(g, 30, random);
  leaves.Build(g);
  HaplotypeMatrixFromTree(g, leaves, m);
  // The sites the routine will draw: one U each, redrawn while taken.
  CoalescentRandom copy = random;
  std::vector<int32_t> sites;
  while (static_cast<int32_t>(sites.size()) < m.Columns()) {
    const int32_t p = static_cast<int32_t>(copy.U() * 50) + 1;
    if (std::find(sites.begin(), sites.end(), p) == sites.end()) sites.push_back(p);
  }
  HaplotypeMatrix original = m;
  ColumnsInRegionOrder(m, 50, random, scratch);
  EXPECT_EQ(random.U(), copy.U());  // exactly as many draws

  std::vector<int32_t> order(sites.size());
  for (size_t j = 0; j < order.size(); ++j) order[j] = static_cast<int32_t>(j);
  std::sort(order.begin(), order.end(), [&](int32_t a, int32_t b) {
    return sites[static_cast<size_t>(a)] < sites[static_cast<size_t>(b)];
  });
  for (int32_t j = 0; j < m.Columns(); ++j)
    EXPECT_EQ(ColumnOf(m, j), ColumnOf(original, order[static_cast<size_t>(j)]));
}

TEST(ColumnsInRegionOrder, DrawsNothingForOneColumnAndRefusesMoreColumnsThanSites) {
  HaplotypeMatrix m;
  m.Reset(4, 1);
  CoalescentRandom random(-5), copy(-5);
  ColumnOrderScratch scratch;
  ColumnsInRegionOrder(m, 1000, random, scratch);
  EXPECT_EQ(random.U(), copy.U());
  m.Reset(4, 6);
  EXPECT_THROW(ColumnsInRegionOrder(m, 5, random, scratch), std::runtime_error);
}

TEST(MajorFlip, FlagsColumnsWithTheMutantInMoreThanHalf) {
  HaplotypeMatrix m;
  m.Reset(4, 3);
  m.at(0, 0) = 1;                                  // 1 of 4
  m.at(0, 1) = m.at(1, 1) = 1;                     // 2 of 4: not more than half
  m.at(0, 2) = m.at(1, 2) = m.at(3, 2) = 1;        // 3 of 4
  std::vector<int16_t> flips;
  MajorFlip(m, flips);
  EXPECT_EQ(flips, (std::vector<int16_t>{0, 0, 1}));
}

}  // namespace
}  // namespace ovelt

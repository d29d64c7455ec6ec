#include "coalescent/pair_differences.h"

#include <gtest/gtest.h>

#include "coalescent/coalescent_random.h"
#include "coalescent/genealogy.h"
#include "coalescent/haplotype_from_tree.h"
#include "coalescent/leaf_order.h"
#include "tree_walkers.h"

namespace ovelt {
namespace {

// Sequences 0, 1, 2: node 3 joins 0 and 1, the root 4 joins 3 and 2. Each branch carries a
// distinct power of two, so that every sum tells which branches went into it.
Genealogy ThreeSequenceTree() {
  Genealogy g;
  g.Allocate(3);
  g.Parent = {3, 3, 4, 4, static_cast<int16_t>(kNoParent)};
  g.FirstChild = {-1, -1, -1, 0, 3};
  g.SecondChild = {-1, -1, -1, 1, 2};
  g.NodeTimes = {0, 0, 0, 0.5, 1.5};
  g.BranchMutations = {1, 2, 4, 8, 16};  // 16 on the root, which has no branch
  return g;
}

TEST(PairDifferences, WalkersNeverAddTheNodeWhereTheyMeet) {
  const Genealogy g = ThreeSequenceTree();
  EXPECT_EQ(testing::WalkedDifferences(g, 0, 1), 1 + 2);      // they meet at node 3
  EXPECT_EQ(testing::WalkedDifferences(g, 0, 2), 1 + 8 + 4);  // they meet at the root
  EXPECT_EQ(testing::WalkedDifferences(g, 1, 2), 2 + 8 + 4);
  LeafOrder leaves;
  leaves.Allocate(3);
  leaves.Build(g);
  PairDifferenceTable t;
  t.Allocate(3);
  PairDifferencesFromTree(g, leaves, t);
  EXPECT_EQ(t.at(0, 1), 3);
  EXPECT_EQ(t.at(0, 2), 13);
  EXPECT_EQ(t.at(1, 2), 14);
  EXPECT_EQ(t.Sum, 30);
  EXPECT_DOUBLE_EQ(t.PairwiseAverage, 10.0);
}

TEST(PairDifferences, FastTableEqualsTheWalkersOnRandomTrees) {
  for (const int32_t n : {2, 3, 7, 40}) {
    Genealogy g;
    g.Allocate(n);
    LeafOrder leaves;
    leaves.Allocate(n);
    PairDifferenceTable t, sumOnly;
    t.Allocate(n);
    sumOnly.Allocate(n);
    CoalescentRandom random(-static_cast<int32_t>(n * 13));
    for (int rep = 0; rep < 50; ++rep) {
      MakeTree(g, random);
      MakeTimes(g, random);
      PoissonMutations(g, 8.0, random);
      leaves.Build(g);
      PairDifferencesFromTree(g, leaves, t);
      int64_t sum = 0;
      for (int32_t i = 0; i < n; ++i)
        for (int32_t j = i + 1; j < n; ++j) {
          const int32_t walked = testing::WalkedDifferences(g, i, j);
          ASSERT_EQ(t.at(i, j), walked) << n << " " << i << " " << j;
          sum += walked;
        }
      EXPECT_EQ(t.Sum, sum);
      EXPECT_DOUBLE_EQ(t.PairwiseAverage, static_cast<double>(sum) / (n * (n - 1) / 2));
      PairDifferenceSumFromTree(g, leaves, sumOnly);
      EXPECT_EQ(sumOnly.Sum, sum);
      EXPECT_EQ(sumOnly.PairwiseAverage, t.PairwiseAverage);
    }
  }
}

TEST(PairDifferences, FromTheMatrixEqualFromTheTree) {
  const int32_t n = 25;
  Genealogy g;
  g.Allocate(n);
  LeafOrder leaves;
  leaves.Allocate(n);
  PairDifferenceTable fromTree, fromMatrix;
  fromTree.Allocate(n);
  fromMatrix.Allocate(n);
  HaplotypeMatrix m;
  CoalescentRandom random(-99);
  for (int rep = 0; rep < 30; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    PoissonMutations(g, 40.0, random);  // often more than 64 columns
    leaves.Build(g);
    PairDifferencesFromTree(g, leaves, fromTree);
    HaplotypeMatrixFromTree(g, leaves, m);
    PairDifferencesFromMatrix(m, fromMatrix);
    for (int32_t i = 0; i < n; ++i)
      for (int32_t j = i + 1; j < n; ++j) ASSERT_EQ(fromMatrix.at(i, j), fromTree.at(i, j));
    EXPECT_EQ(fromMatrix.Sum, fromTree.Sum);
  }
}

}  // namespace
}  // namespace ovelt

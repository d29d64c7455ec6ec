#include "coalescent/genealogy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <vector>

#include "coalescent/coalescent_random.h"
#include "simulation_test_support.h"
#include "stats/harmonic.h"

namespace ovelt {
namespace {

using testing::Moments;

TEST(MakeTree, TwoSequencesMakeTheSingleInternalNodeTwo) {
  Genealogy g;
  g.Allocate(2);
  CoalescentRandom random(-7);
  MakeTree(g, random);
  EXPECT_EQ(g.Root(), 2);
  EXPECT_EQ(g.Parent[0], 2);
  EXPECT_EQ(g.Parent[1], 2);
  EXPECT_EQ(g.Parent[2], kNoParent);
  EXPECT_EQ(g.FirstChild[2] + g.SecondChild[2], 1);
}

TEST(MakeTree, EveryNodeBelowTheRootHasOneParentAboveIt) {
  Genealogy g;
  g.Allocate(30);
  CoalescentRandom random(-11);
  for (int rep = 0; rep < 50; ++rep) {
    MakeTree(g, random);
    std::vector<int> childCount(static_cast<size_t>(g.NodeCount()), 0);
    for (int32_t v = 0; v < g.Root(); ++v) {
      const int32_t p = g.Parent[static_cast<size_t>(v)];
      ASSERT_GT(p, v);
      ASSERT_GE(p, g.n);
      ++childCount[static_cast<size_t>(p)];
      ASSERT_TRUE(g.FirstChild[static_cast<size_t>(p)] == v ||
                  g.SecondChild[static_cast<size_t>(p)] == v);
    }
    for (int32_t v = g.n; v <= g.Root(); ++v) EXPECT_EQ(childCount[static_cast<size_t>(v)], 2);
  }
}

TEST(MakeTimes, TwoSequencesCoalesceAtMeanTimeOne) {
  Genealogy g;
  g.Allocate(2);
  CoalescentRandom random(-3);
  Moments t;
  for (int rep = 0; rep < 20000; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    t.Add(g.NodeTimes[2]);
  }
  // The time is exponential of mean 2 / (2 x 1) = 1, so its variance is 1 as well.
  EXPECT_NEAR(t.Mean(), 1.0, t.Tolerance());
  EXPECT_NEAR(t.Variance(), 1.0, 0.1);
}

TEST(MakeTimes, MeanTimeToTheCommonAncestorIsTwiceOneLessOneOverN) {
  // E[T] = sum over k = 2..n of 2 / (k (k - 1)) = 2 (1 - 1/n), in units of 2N generations.
  for (const int32_t n : {4, 10, 40}) {
    Genealogy g;
    g.Allocate(n);
    CoalescentRandom random(-static_cast<int32_t>(100 + n));
    Moments root;
    Moments intervals;
    for (int rep = 0; rep < 10000; ++rep) {
      MakeTree(g, random);
      MakeTimes(g, random);
      root.Add(g.NodeTimes[static_cast<size_t>(g.Root())]);
      int32_t steps = 0;
      for (int32_t m = n; m <= g.Root(); ++m)
        if (g.NodeTimes[static_cast<size_t>(m)] > (m == n ? 0.0 : g.NodeTimes[static_cast<size_t>(m - 1)]))
          ++steps;
      intervals.Add(steps);
    }
    EXPECT_NEAR(root.Mean(), 2.0 * (1.0 - 1.0 / n), root.Tolerance()) << "n = " << n;
    // One coalescence ends each of the n - 1 intervals, and each interval has a positive length.
    EXPECT_EQ(intervals.Mean(), n - 1.0);
  }
}

TEST(MakeTimes, MeanLastIntervalMatchesItsRate) {
  // The interval with k = 2 lineages has mean 2 / (2 x 1) = 1 whatever n.
  Genealogy g;
  g.Allocate(12);
  CoalescentRandom random(-77);
  Moments last;
  for (int rep = 0; rep < 10000; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    last.Add(g.NodeTimes[static_cast<size_t>(g.Root())] -
             g.NodeTimes[static_cast<size_t>(g.Root() - 1)]);
  }
  EXPECT_NEAR(last.Mean(), 1.0, last.Tolerance());
}

TEST(TreeLength, IsTheSumOfTheBranchLengths) {
  Genealogy g;
  g.Allocate(9);
  CoalescentRandom random(-5);
  MakeTree(g, random);
  MakeTimes(g, random);
  double sum = 0.0;
  for (int32_t v = 0; v < g.Root(); ++v) sum += g.BranchLength(v);
  EXPECT_NEAR(g.TreeLength(), sum, 1e-12);
}

TEST(PoissonMutations, MeanSegregatingSitesIsThetaTimesA1) {
  const int32_t n = 10;
  const double theta = 5.0;
  Genealogy g;
  g.Allocate(n);
  CoalescentRandom random(-2024);
  Moments s;
  for (int rep = 0; rep < 10000; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    const int32_t total = PoissonMutations(g, theta, random);
    ASSERT_EQ(total, std::accumulate(g.BranchMutations.begin(), g.BranchMutations.end(), 0));
    s.Add(total);
  }
  const double a1 = HarmonicA1Double(n);
  double a2 = 0.0;
  for (int i = 1; i < n; ++i) a2 += 1.0 / (i * i);
  EXPECT_NEAR(s.Mean(), theta * a1, s.Tolerance());
  // Watterson (1975): Var(S) = theta a1 + theta^2 a2.
  EXPECT_NEAR(s.Variance(), theta * a1 + theta * theta * a2, 0.1 * (theta * a1 + theta * theta * a2));
}

TEST(PoissonMutations, TinyThetaLeavesEveryBranchEmpty) {
  Genealogy g;
  g.Allocate(8);
  CoalescentRandom random(-9);
  for (int rep = 0; rep < 200; ++rep) {
    MakeTree(g, random);
    MakeTimes(g, random);
    EXPECT_EQ(PoissonMutations(g, 1e-12, random), 0);
    for (const int32_t m : g.BranchMutations) EXPECT_EQ(m, 0);
  }
}

TEST(FixedMutations, PlacesExactlyTheGivenNumber) {
  Genealogy g;
  g.Allocate(15);
  CoalescentRandom random(-31);
  for (const int32_t s : {1, 7, 250}) {
    for (int rep = 0; rep < 100; ++rep) {
      MakeTree(g, random);
      MakeTimes(g, random);
      FixedMutations(g, s, random);
      EXPECT_EQ(std::accumulate(g.BranchMutations.begin(), g.BranchMutations.end(), 0), s);
      EXPECT_EQ(g.BranchMutations[static_cast<size_t>(g.Root())], 0);
    }
  }
}

TEST(FixedMutations, ChoosesTheBranchTheWalkFromNodeZeroReaches) {
  // The walk of each mutation: x = U x T, the first node whose running sum of lengths reaches x.
  Genealogy g;
  g.Allocate(6);
  CoalescentRandom random(-41);
  MakeTree(g, random);
  MakeTimes(g, random);
  CoalescentRandom copy = random;
  FixedMutations(g, 40, random);
  std::vector<int32_t> walked(static_cast<size_t>(g.NodeCount()), 0);
  for (int m = 0; m < 40; ++m) {
    const double x = copy.U() * g.TreeLength();
    double sum = 0.0;
    int32_t chosen = g.Root() - 1;
    for (int32_t i = 0; i < g.Root(); ++i) {
      sum += g.BranchLength(i);
      if (sum >= x) {
        chosen = i;
        break;
      }
    }
    ++walked[static_cast<size_t>(chosen)];
  }
  EXPECT_EQ(walked, g.BranchMutations);
}

TEST(FixedMutations, BranchesReceiveMutationsInProportionToTheirLength) {
  // Over many draws on one tree, the share of each branch approaches length / T.
  Genealogy g;
  g.Allocate(5);
  CoalescentRandom random(-8);
  MakeTree(g, random);
  MakeTimes(g, random);
  const int32_t draws = 40000;
  FixedMutations(g, draws, random);
  for (int32_t v = 0; v < g.Root(); ++v) {
    const double p = g.BranchLength(v) / g.TreeLength();
    const double sd = std::sqrt(draws * p * (1 - p));
    EXPECT_NEAR(g.BranchMutations[static_cast<size_t>(v)], draws * p, 5 * sd + 1);
  }
}

}  // namespace
}  // namespace ovelt

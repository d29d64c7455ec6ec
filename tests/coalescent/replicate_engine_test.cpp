#include "coalescent/replicate_engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>
#include <numeric>

#include "coalescent/haplotype_from_tree.h"
#include "coalescent/statistic_code.h"
#include "simulation_test_support.h"
#include "stats/harmonic.h"
#include "stats/tajima_d.h"

namespace ovelt {
namespace {

using testing::Moments;

ReplicateSettings Settings(int code, int32_t n, double theta) {
  ReplicateSettings s;
  s.n = n;
  s.Theta = theta;
  s.code = code;
  return s;
}

// Tajima (1983): Var(Pi) = theta (n + 1) / (3 (n - 1)) + 2 theta^2 (n^2 + n + 3) / (9 n (n - 1)).
double PiVarianceWithoutRecombination(int32_t n, double theta) {
  return theta * (n + 1) / (3.0 * (n - 1)) +
         2.0 * theta * theta * (n * n + n + 3.0) / (9.0 * n * (n - 1));
}

// With every site unlinked, Pi is a Poisson(theta a1) sum of independent site contributions
// c = k (n - k) / C(n, 2), k drawn with P(k) = (1/k) / a1: Var(Pi) = theta a1 E[c^2].
double PiVarianceFreeRecombination(int32_t n, double theta) {
  const double pairs = n * (n - 1) / 2.0;
  double sum = 0.0;
  for (int k = 1; k < n; ++k) {
    const double c = k * (n - k) / pairs;
    sum += c * c / k;
  }
  return theta * sum;
}

TEST(ReplicateEngine, MeanPairwiseDifferencesIsTheta) {
  const int32_t n = 10;
  const double theta = 6.0;
  ReplicateEngine engine(Settings(kCodePi, n, theta));
  CoalescentRandom random(-1);
  Moments pi, s;
  for (int rep = 0; rep < 10000; ++rep) {
    const auto v = engine.Next(random);
    ASSERT_TRUE(v.has_value());
    EXPECT_EQ(*v, engine.PairwiseAverage());
    pi.Add(*v);
    s.Add(engine.SegSites());
  }
  EXPECT_NEAR(pi.Mean(), theta, pi.Tolerance());
  EXPECT_NEAR(s.Mean(), theta * HarmonicA1Double(n), s.Tolerance());
  const double expected = PiVarianceWithoutRecombination(n, theta);
  EXPECT_NEAR(pi.Variance(), expected, 0.1 * expected);
}

TEST(ReplicateEngine, MeanTajimaDIsNearZero) {
  const int32_t n = 20;
  ReplicateEngine engine(Settings(kCodeTajimaD, n, 10.0));
  CoalescentRandom random(-2);
  Moments d;
  for (int rep = 0; rep < 5000; ++rep) {
    const auto v = engine.Next(random);
    ASSERT_TRUE(v.has_value());
    EXPECT_DOUBLE_EQ(*v, TajimaDFromCounts(n, engine.PairwiseAverage(), engine.SegSites()));
    d.Add(*v);
  }
  // D is built to have mean near 0 and variance near 1 under the standard neutral model; its
  // exact mean is slightly negative, well inside these bounds.
  EXPECT_NEAR(d.Mean(), 0.0, std::max(d.Tolerance(), 0.1));
  EXPECT_NEAR(d.Variance(), 1.0, 0.35);
}

TEST(ReplicateEngine, FixedSegregatingSitesGiveExactlySColumns) {
  ReplicateSettings s = Settings(kCodeZnS, 12, 0.0);
  s.GivenSegSites = true;
  s.SegSites = 17;
  ReplicateEngine engine(s);
  CoalescentRandom random(-3);
  for (int rep = 0; rep < 200; ++rep) {
    (void)engine.Next(random);
    EXPECT_EQ(engine.SegSites(), 17);
    EXPECT_EQ(engine.Matrix().Columns(), 17);
    const auto& bm = engine.Tree().BranchMutations;
    EXPECT_EQ(std::accumulate(bm.begin(), bm.end(), 0), 17);
  }
}

TEST(ReplicateEngine, TinyThetaFailsTheStatisticsThatNeedVariation) {
  for (const int code : {kCodeTajimaD, kCodeRaggedness, kCodeFs, kCodeR2, kCodeFuLiDStar,
                         kCodeFuLiD, kCodeZnS, kCodeZa, kCodeWallB}) {
    ReplicateEngine engine(Settings(code, 8, 1e-12));
    CoalescentRandom random(-4);
    for (int rep = 0; rep < 20; ++rep) {
      EXPECT_FALSE(engine.Next(random).has_value()) << "code " << code;
      EXPECT_EQ(engine.SegSites(), 0);
      EXPECT_EQ(engine.PairwiseAverage(), 0.0);
    }
  }
  // Those that need none are computed: Pi = 0, one haplotype, Hd = 0.
  for (const int code : {kCodePi, kCodeHaplotypes, kCodeHd, kCodeThetaW}) {
    ReplicateEngine engine(Settings(code, 8, 1e-12));
    CoalescentRandom random(-4);
    const auto v = engine.Next(random);
    ASSERT_TRUE(v.has_value());
    EXPECT_EQ(*v, code == kCodeHaplotypes ? 1.0 : 0.0);
  }
}

TEST(ReplicateEngine, TheOneStreamDrawsInTheOrderOfTheSteps) {
  // The same draws made by hand: topology, times, Poisson mutations, replicate after replicate.
  const int32_t n = 7;
  ReplicateEngine engine(Settings(kCodePi, n, 4.0));
  CoalescentRandom random(-555), byHand(-555);
  Genealogy g;
  g.Allocate(n);
  for (int rep = 0; rep < 100; ++rep) {
    (void)engine.Next(random);
    MakeTree(g, byHand);
    MakeTimes(g, byHand);
    const int32_t s = PoissonMutations(g, 4.0, byHand);
    ASSERT_EQ(engine.SegSites(), s);
    ASSERT_EQ(engine.Tree().BranchMutations, g.BranchMutations);
  }
  EXPECT_EQ(random.U(), byHand.U());
}

TEST(ReplicateEngine, HaplotypesAndDiversityAgreeWithTheMatrix) {
  // h from the pair table equals the number of distinct rows of the haplotype matrix built on
  // the same tree.
  const int32_t n = 15;
  ReplicateEngine hEngine(Settings(kCodeHaplotypes, n, 3.0));
  CoalescentRandom random(-6);
  for (int rep = 0; rep < 100; ++rep) {
    const double h = *hEngine.Next(random);
    HaplotypeMatrix m;
    HaplotypeMatrixFromTree(hEngine.Tree(), hEngine.Leaves(), m);
    std::vector<std::vector<int16_t>> rows;
    for (int32_t r = 0; r < n; ++r) {
      std::vector<int16_t> row;
      for (int32_t c = 0; c < m.Columns(); ++c) row.push_back(m.at(r, c));
      if (std::find(rows.begin(), rows.end(), row) == rows.end()) rows.push_back(row);
    }
    EXPECT_EQ(h, static_cast<double>(rows.size()));
  }
}

TEST(ReplicateEngine, FreeRecombinationLowersTheVarianceOfPiAsTheoryGives) {
  const int32_t n = 10;
  const double theta = 8.0;
  ReplicateSettings s = Settings(kCodePi, n, theta);
  s.Recombination = kFreeRecombination;
  ReplicateEngine engine(s);
  CoalescentRandom random(-7);
  Moments pi;
  for (int rep = 0; rep < 10000; ++rep) pi.Add(*engine.Next(random));
  EXPECT_NEAR(pi.Mean(), theta, pi.Tolerance());
  const double expected = PiVarianceFreeRecombination(n, theta);
  EXPECT_NEAR(pi.Variance(), expected, 0.1 * expected);
  EXPECT_LT(expected, 0.5 * PiVarianceWithoutRecombination(n, theta));
}

TEST(ReplicateEngine, IntermediateRecombinationKeepsTheMeanOfPiAndLowersItsVariance) {
  // Recombination leaves E[Pi] = theta but averages Pi over more than one genealogy.
  const int32_t n = 8;
  const double theta = 6.0;
  ReplicateSettings s = Settings(kCodePi, n, theta);
  s.Recombination = kIntermediateRecombination;
  s.R = 30.0;
  s.Sites = 100;
  ReplicateEngine engine(s);
  CoalescentRandom random(-8);
  Moments pi;
  for (int rep = 0; rep < 500; ++rep) pi.Add(*engine.Next(random));
  EXPECT_NEAR(pi.Mean(), theta, pi.Tolerance());
  EXPECT_LT(pi.Variance(), 0.7 * PiVarianceWithoutRecombination(n, theta));
  EXPECT_GT(pi.Variance(), 0.8 * PiVarianceFreeRecombination(n, theta));
}

}  // namespace
}  // namespace ovelt

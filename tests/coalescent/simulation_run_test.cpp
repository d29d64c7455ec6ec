#include "coalescent/simulation_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "coalescent/coalescent_random.h"
#include "coalescent/replicate_engine.h"
#include "simulation_test_support.h"
#include "stats/harmonic.h"

namespace ovelt {
namespace {

using testing::SegSitesSpec;
using testing::ThetaSpec;

void ExpectSameResult(const SimulationResult& a, const SimulationResult& b) {
  EXPECT_EQ(a.ProbabilityLE, b.ProbabilityLE);
  EXPECT_EQ(a.AverageStatistic, b.AverageStatistic);
  EXPECT_EQ(a.AveragePi, b.AveragePi);
  EXPECT_EQ(a.LowerLimit, b.LowerLimit);
  EXPECT_EQ(a.UpperLimit, b.UpperLimit);
  EXPECT_EQ(a.EffectiveReplicates, b.EffectiveReplicates);
  EXPECT_EQ(a.FailedReplicates, b.FailedReplicates);
}

// The values of the replicates that did not fail, drawn again by hand from the run's one stream.
std::vector<double> ValuesOf(const SimulationSpec& s) {
  ReplicateSettings r;
  r.n = s.SampleSize;
  r.Theta = s.Theta;
  r.code = s.StatisticCode % kGivenSegSitesOffset;
  ReplicateEngine engine(r);
  CoalescentRandom random(-(s.Seed == 0 ? 111295 : s.Seed));
  std::vector<double> values;
  for (int32_t rep = 0; rep < s.Replicates; ++rep)
    if (const auto v = engine.Next(random)) values.push_back(*v);
  return values;
}

TEST(RunSimulation, RepeatsExactlyForASeed) {
  const SimulationSpec s = ThetaSpec(kCodeTajimaD, 10, 12.0, 300, 77);
  ExpectSameResult(RunSimulation(s), RunSimulation(s));
}

TEST(RunSimulation, SeedZeroRunsAs111295) {
  SimulationSpec zero = ThetaSpec(kCodeTajimaD, 10, 12.0, 300, 0);
  SimulationSpec named = zero;
  named.Seed = 111295;
  const SimulationResult a = RunSimulation(zero);
  ExpectSameResult(a, RunSimulation(named));
  EXPECT_EQ(a.Seed, 111295);
}

TEST(RunSimulation, AveragesLimitsAndProbabilityFromTheReplicates) {
  SimulationSpec s = ThetaSpec(kCodePi, 10, 5.0, 400, 12);
  s.ObservedValue = 4.0;
  const SimulationResult r = RunSimulation(s);
  std::vector<double> v = ValuesOf(s);
  ASSERT_EQ(v.size(), 400u);
  double sum = 0.0;
  for (const double x : v) sum += x;
  std::sort(v.begin(), v.end());
  const int32_t k = 10;  // (100 - 95) / 200 x 400
  EXPECT_EQ(r.TailSize, k);
  EXPECT_EQ(r.LowerLimit, v[k - 1]);
  EXPECT_EQ(r.UpperLimit, v[v.size() - k]);
  EXPECT_DOUBLE_EQ(r.AverageStatistic, sum / 400);
  EXPECT_DOUBLE_EQ(r.AveragePi, sum / 400);
  EXPECT_DOUBLE_EQ(r.ProbabilityLE,
                   static_cast<double>(std::count_if(v.begin(), v.end(),
                                                     [](double x) { return x <= 4.0; })) /
                       400);
  EXPECT_EQ(r.EffectiveReplicates, 400);
  EXPECT_EQ(r.FailedReplicates, 0);
}

TEST(RunSimulation, OneReplicateGivesBothLimitsItsValue) {
  const SimulationSpec s = ThetaSpec(kCodePi, 10, 5.0, 1, 3);
  const SimulationResult r = RunSimulation(s);
  EXPECT_EQ(r.TailSize, 1);
  EXPECT_EQ(r.LowerLimit, r.AverageStatistic);
  EXPECT_EQ(r.UpperLimit, r.AverageStatistic);
  EXPECT_EQ(r.AverageStatistic, ValuesOf(s)[0]);
}

TEST(RunSimulation, AnObservedValueEqualToAReplicateCountsAsNotAbove) {
  SimulationSpec s = ThetaSpec(kCodePi, 10, 5.0, 1, 3);
  const double value = RunSimulation(s).AverageStatistic;
  s.ObservedValue = value;
  EXPECT_EQ(RunSimulation(s).ProbabilityLE, 1.0);
  s.ObservedValue = std::nextafter(value, -1.0);
  EXPECT_EQ(RunSimulation(s).ProbabilityLE, 0.0);
}

TEST(RunSimulation, AllReplicatesFailedDividesByTheReplicatesAndLeavesZeros) {
  SimulationSpec s = ThetaSpec(kCodeRaggedness, 6, 1e-9, 50, 5);
  s.ObservedValue = 1.0;
  const SimulationResult r = RunSimulation(s);
  EXPECT_EQ(r.EffectiveReplicates, 0);
  EXPECT_EQ(r.FailedReplicates, 0);
  EXPECT_EQ(r.AverageStatistic, 0.0);
  EXPECT_EQ(r.AveragePi, 0.0);
  EXPECT_EQ(r.LowerLimit, 0.0);
  EXPECT_EQ(r.UpperLimit, 0.0);
  EXPECT_EQ(r.ProbabilityLE, 0.0);
}

TEST(RunSimulation, FewerEffectiveReplicatesThanKRecomputeTheLimits) {
  // Raggedness fails whenever Pi = 0, which a small theta makes common.
  SimulationSpec s = ThetaSpec(kCodeRaggedness, 4, 0.1, 200, 9);
  s.ConfidencePercent = 50.0f;  // k = 50
  const SimulationResult r = RunSimulation(s);
  std::vector<double> v = ValuesOf(s);
  const auto effective = static_cast<int32_t>(v.size());
  ASSERT_GT(effective, 3);
  ASSERT_LT(effective, 50);
  EXPECT_EQ(r.EffectiveReplicates, effective);
  EXPECT_EQ(r.FailedReplicates, 200 - effective);
  std::sort(v.begin(), v.end());
  int32_t kk = static_cast<int32_t>(static_cast<float>(effective) * 0.25f);
  if (kk == 0) kk = 1;
  EXPECT_EQ(r.LowerLimit, v[static_cast<size_t>(kk - 1)]);
  EXPECT_EQ(r.UpperLimit, v[static_cast<size_t>(effective - kk)]);
  double sum = 0.0;
  for (const double x : v) sum += x;
  EXPECT_DOUBLE_EQ(r.AverageStatistic, sum / effective);
}

TEST(RunSimulation, OneHundredPercentTakesTheExtremes) {
  SimulationSpec s = ThetaSpec(kCodeTajimaD, 8, 4.0, 300, 21);
  s.ConfidencePercent = 100.0f;
  const SimulationResult r = RunSimulation(s);
  const std::vector<double> v = ValuesOf(s);
  EXPECT_EQ(r.TailSize, 1);
  EXPECT_EQ(r.LowerLimit, *std::min_element(v.begin(), v.end()));
  EXPECT_EQ(r.UpperLimit, *std::max_element(v.begin(), v.end()));
}

TEST(RunSimulation, ThetaFromGivenSegregatingSitesIsOneValue) {
  SimulationSpec s = SegSitesSpec(kCodeThetaW, 10, 20, 50, 4);
  const double value = 20.0 / HarmonicA1Double(10);
  s.ObservedValue = value;
  SimulationResult r = RunSimulation(s);
  EXPECT_EQ(r.LowerLimit, value);
  EXPECT_EQ(r.UpperLimit, value);
  EXPECT_EQ(r.AverageStatistic, value);
  EXPECT_EQ(r.ProbabilityLE, 1.0);
  // 1 when the observed value is not above S / a1.
  s.ObservedValue = value - 0.01;
  EXPECT_EQ(RunSimulation(s).ProbabilityLE, 1.0);
  s.ObservedValue = value + 0.01;
  EXPECT_EQ(RunSimulation(s).ProbabilityLE, 0.0);
}

TEST(RunSimulation, ProgressOnlyRisesAndEndsAtOneHundred) {
  std::vector<int> seen;
  (void)RunSimulation(ThetaSpec(kCodePi, 6, 2.0, 250, 1), [&](int p) { seen.push_back(p); });
  ASSERT_FALSE(seen.empty());
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
  EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
  EXPECT_EQ(seen.back(), 100);
}

TEST(RunSimulation, ThreadedResultsDoNotDependOnTheNumberOfThreads) {
  SimulationSpec s = ThetaSpec(kCodeTajimaD, 10, 6.0, 3500, 8);
  s.ObservedValue = -0.5;
  const SimulationResult two = RunSimulation(s, {}, 2);
  ExpectSameResult(two, RunSimulation(s, {}, 3));
  ExpectSameResult(two, RunSimulation(s, {}, 8));
  // Its blocks come from other streams than the one stream of the seed.
  EXPECT_NE(two.AverageStatistic, RunSimulation(s).AverageStatistic);
}

TEST(RunSimulation, ThreadedRunOfOneBlockIsThatBlocksStream) {
  // With at most one block, the threaded result is the one stream started by the block's seed.
  SimulationSpec s = ThetaSpec(kCodePi, 8, 3.0, 600, 15);
  const SimulationResult threaded = RunSimulation(s, {}, 2);
  ReplicateSettings r;
  r.n = 8;
  r.Theta = 3.0;
  r.code = kCodePi;
  ReplicateEngine engine(r);
  CoalescentRandom random(BlockSeedVariable(15, 0));
  double sum = 0.0;
  for (int rep = 0; rep < 600; ++rep) sum += *engine.Next(random);
  EXPECT_DOUBLE_EQ(threaded.AverageStatistic, sum / 600);
}

TEST(BlockSeedVariable, IsNegativeAndWithinTheGeneratorsStarts) {
  for (const int32_t seed : {0, 1, 111295, -5, 2147483647}) {
    for (int32_t block = 0; block < 60; ++block) {
      const int32_t v = BlockSeedVariable(seed, block);
      EXPECT_LT(v, 0);
      EXPECT_GE(v, -259200);
    }
  }
  EXPECT_NE(BlockSeedVariable(1, 0), BlockSeedVariable(1, 1));
  EXPECT_NE(BlockSeedVariable(1, 0), BlockSeedVariable(2, 0));
}

}  // namespace
}  // namespace ovelt

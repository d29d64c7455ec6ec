#include "coalescent/simulation_run.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "coalescent/coalescent_random.h"
#include "coalescent/replicate_engine.h"
#include "coalescent/replicate_tails.h"
#include "coalescent/statistic_code.h"
#include "stats/harmonic.h"

namespace ovelt {
namespace {

// The generator's initialisation takes (54773 - seed variable) mod 259200, so a negative seed
// variable of -1 .. -259200 reaches every start it can take.
constexpr uint64_t kDistinctStarts = 259200;

ReplicateSettings SettingsOf(const SimulationSpec& s) {
  ReplicateSettings r;
  r.n = s.SampleSize;
  r.GivenSegSites = s.SegSitesGiven();
  r.Theta = s.Theta;
  r.SegSites = s.SegSites;
  r.code = s.StatisticCode % kGivenSegSitesOffset;
  r.Recombination = s.RecombinationChoice;
  r.R = s.RecombinationR;
  r.Sites = s.SitesInRegion;
  return r;
}

int32_t SeedThatRuns(int32_t seed) { return seed == 0 ? kUnsetSeedReplacement : seed; }

// Minus the seed. The one seed whose negative does not fit is taken to the largest value, which,
// like every seed variable above 54773, the generator refuses.
int32_t SeedVariableOf(int32_t seed) {
  const int64_t negative = -static_cast<int64_t>(SeedThatRuns(seed));
  return negative > INT32_MAX ? INT32_MAX : static_cast<int32_t>(negative);
}

// The replicates of one stream: the tails, the failures and the total of Pi.
struct StreamSummary {
  explicit StreamSummary(int32_t k) : Tails(k) {}
  ReplicateTails Tails;
  int32_t Failed = 0;
  double PiTotal = 0.0;
};

void RunReplicates(ReplicateEngine& engine, CoalescentRandom& random, int32_t count,
                   double observed, StreamSummary& summary,
                   const std::function<void(int32_t)>& afterEach) {
  for (int32_t rep = 1; rep <= count; ++rep) {
    const std::optional<double> v = engine.Next(random);
    summary.PiTotal += engine.PairwiseAverage();
    if (v) {
      summary.Tails.File(*v, observed);
    } else {
      ++summary.Failed;
    }
    if (afterEach) afterEach(rep);
  }
}

SimulationResult Finish(const SimulationSpec& sim, const ReplicateTails& tails, int32_t failed,
                        double piTotal) {
  SimulationResult r;
  r.Seed = SeedThatRuns(sim.Seed);
  r.TailSize = tails.K();
  r.EffectiveReplicates = sim.Replicates - failed;
  r.FailedReplicates = failed;
  double divisor = r.EffectiveReplicates;
  if (r.EffectiveReplicates == 0) {
    r.FailedReplicates = 0;
    divisor = sim.Replicates;
  }
  r.AveragePi = piTotal / divisor;
  r.AverageStatistic = tails.Sum() / divisor;
  r.ProbabilityLE = static_cast<double>(tails.AtMostObserved()) / divisor;
  const int32_t k = tails.K();
  r.LowerLimit = tails.Low(k);
  r.UpperLimit = tails.High(k);
  const int32_t effective = r.EffectiveReplicates;
  if (effective > 0 && effective < k) {
    const int32_t kk = ReducedTailSize(sim.ConfidencePercent, effective);
    std::vector<double> values;
    for (int32_t i = 1; i <= effective; ++i) values.push_back(tails.Low(i));
    std::sort(values.begin(), values.end());
    r.LowerLimit = values[static_cast<size_t>(kk - 1)];
    r.UpperLimit = values[static_cast<size_t>(effective - kk)];
  }
  if (sim.StatisticCode == kGivenSegSitesOffset + kCodeThetaW) {
    const double value = sim.SegSites / HarmonicA1Double(sim.SampleSize);
    r.LowerLimit = r.UpperLimit = r.AverageStatistic = value;
    r.ProbabilityLE = sim.ObservedValue <= value ? 1.0 : 0.0;
  }
  return r;
}

SimulationResult RunSingleStream(const SimulationSpec& sim, const SimulationProgress& progress) {
  ReplicateEngine engine(SettingsOf(sim));
  CoalescentRandom random(SeedVariableOf(sim.Seed));
  StreamSummary summary(TailSize(sim.ConfidencePercent, sim.Replicates));
  int shown = 0;
  RunReplicates(engine, random, sim.Replicates, sim.ObservedValue, summary, [&](int32_t rep) {
    const int percent = static_cast<int>(100LL * rep / sim.Replicates);
    if (percent > shown && progress) progress(percent);
    shown = std::max(shown, percent);
  });
  return Finish(sim, summary.Tails, summary.Failed, summary.PiTotal);
}

SimulationResult RunBlocks(const SimulationSpec& sim, const SimulationProgress& progress,
                           int32_t threads) {
  const int32_t k = TailSize(sim.ConfidencePercent, sim.Replicates);
  const int32_t blocks = (sim.Replicates + kReplicatesPerBlock - 1) / kReplicatesPerBlock;
  std::vector<StreamSummary> summaries(static_cast<size_t>(blocks), StreamSummary(k));
  std::atomic<int32_t> nextBlock{0};
  std::atomic<int32_t> replicatesDone{0};
  std::exception_ptr failure;
  std::mutex failureLock;
  const int32_t seed = SeedThatRuns(sim.Seed);

  auto worker = [&](bool reports) {
    try {
      ReplicateEngine engine(SettingsOf(sim));
      int shown = 0;
      for (int32_t b = nextBlock++; b < blocks; b = nextBlock++) {
        const int32_t count =
            std::min(kReplicatesPerBlock, sim.Replicates - b * kReplicatesPerBlock);
        CoalescentRandom random(BlockSeedVariable(seed, b));
        RunReplicates(engine, random, count, sim.ObservedValue,
                      summaries[static_cast<size_t>(b)], {});
        const int32_t done = replicatesDone += count;
        const int percent = static_cast<int>(100LL * done / sim.Replicates);
        if (reports && progress && percent > shown) progress(percent);
        shown = std::max(shown, percent);
      }
    } catch (...) {
      const std::lock_guard<std::mutex> lock(failureLock);
      if (!failure) failure = std::current_exception();
      nextBlock = blocks;
    }
  };
  std::vector<std::thread> helpers;
  const int32_t used = std::min(threads, blocks);
  for (int32_t t = 1; t < used; ++t) helpers.emplace_back(worker, false);
  worker(true);
  for (std::thread& t : helpers) t.join();
  if (failure) std::rethrow_exception(failure);
  if (progress) progress(100);

  std::vector<ReplicateTails> tails;
  int32_t failed = 0;
  double piTotal = 0.0;
  for (const StreamSummary& s : summaries) {
    tails.push_back(s.Tails);
    failed += s.Failed;
    piTotal += s.PiTotal;
  }
  return Finish(sim, ReplicateTails::Merge(tails, k), failed, piTotal);
}

}  // namespace

int32_t BlockSeedVariable(int32_t seed, int32_t block) {
  uint64_t z = (static_cast<uint64_t>(static_cast<uint32_t>(seed)) << 32) |
               static_cast<uint32_t>(block);
  z += 0x9E3779B97F4A7C15ULL;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  z ^= z >> 31;
  return -static_cast<int32_t>(1 + z % kDistinctStarts);
}

SimulationResult RunSimulation(const SimulationSpec& sim, const SimulationProgress& progress,
                               int32_t threads) {
  if (threads < 2) return RunSingleStream(sim, progress);
  return RunBlocks(sim, progress, threads);
}

}  // namespace ovelt

// Times coalescent runs of Tajima's D: replicates per second with the one stream of the seed
// and with two threads, for the sample sizes, thetas and recombination levels of typical use.
//
//   coalescent_bench [replicates]     (default 10000)

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "coalescent/simulation_run.h"
#include "coalescent/statistic_code.h"

namespace {

struct Case {
  const char* label;
  int16_t n;
  double theta;
  double r;  // 0: no recombination
};

double ReplicatesPerSecond(const ovelt::SimulationSpec& s, int threads) {
  const auto start = std::chrono::steady_clock::now();
  const ovelt::SimulationResult result = ovelt::RunSimulation(s, {}, threads);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  if (result.EffectiveReplicates <= 0) std::fprintf(stderr, "no effective replicate\n");
  return s.Replicates / seconds.count();
}

}  // namespace

int main(int argc, char** argv) {
  const int32_t replicates = argc > 1 ? std::atoi(argv[1]) : 10000;
  const Case cases[] = {
      {"n = 10, theta = 12", 10, 12.0, 0.0},
      {"n = 50, theta = 10", 50, 10.0, 0.0},
      {"n = 500, theta = 50", 500, 50.0, 0.0},
      {"n = 50, theta = 10, R = 10, 2000 sites", 50, 10.0, 10.0},
      {"n = 50, theta = 10, R = 100, 2000 sites", 50, 10.0, 100.0},
  };
  std::printf("%-42s %16s %16s\n", "Tajima's D", "one stream /s", "2 threads /s");
  for (const Case& c : cases) {
    ovelt::SimulationSpec s;
    s.Theta = c.theta;
    s.SampleSize = c.n;
    s.Replicates = replicates;
    s.Seed = 1;
    s.StatisticCode = ovelt::kCodeTajimaD;
    if (c.r > 0.0) {
      s.RecombinationChoice = 2;
      s.RecombinationR = c.r;
      s.SitesInRegion = 2000;
    }
    const double one = ReplicatesPerSecond(s, 1);
    const double two = ReplicatesPerSecond(s, 2);
    std::printf("%-42s %16.0f %16.0f\n", c.label, one, two);
  }
  return 0;
}

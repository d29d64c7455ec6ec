#pragma once
// Helpers of the run tests: the inputs of a run built field by field, and moments with their standard error.

#include <cmath>
#include <cstdint>

#include "coalescent/simulation_input.h"
#include "coalescent/statistic_code.h"

namespace ovelt::testing {

inline SimulationSpec ThetaSpec(int code, int16_t n, double theta, int32_t replicates,
                                int32_t seed) {
  SimulationSpec s;
  s.Given = GivenMode::kTheta;
  s.Theta = theta;
  s.SampleSize = n;
  s.Replicates = replicates;
  s.Seed = seed;
  s.StatisticCode = static_cast<int16_t>(code);
  return s;
}

inline SimulationSpec SegSitesSpec(int code, int16_t n, int32_t segSites, int32_t replicates,
                                   int32_t seed) {
  SimulationSpec s = ThetaSpec(code, n, 0.0, replicates, seed);
  s.Given = GivenMode::kSegSites;
  s.SegSites = segSites;
  s.StatisticCode = static_cast<int16_t>(code + kGivenSegSitesOffset);
  return s;
}

struct Moments {
  double sum = 0.0, squares = 0.0;
  int64_t count = 0;
  void Add(double x) {
    sum += x;
    squares += x * x;
    ++count;
  }
  [[nodiscard]] double Mean() const { return sum / static_cast<double>(count); }
  [[nodiscard]] double Variance() const {
    const double m = Mean();
    return (squares - static_cast<double>(count) * m * m) / static_cast<double>(count - 1);
  }
  // Five standard errors of the mean.
  [[nodiscard]] double Tolerance() const { return 5.0 * std::sqrt(Variance() / count); }
};

}  // namespace ovelt::testing

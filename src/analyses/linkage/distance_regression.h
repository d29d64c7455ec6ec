#pragma once
// The least-squares lines of a linkage measure on the nucleotide distance of the pairs, X in
// kilobases. A line is fitted only to more than 2 points.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovelt {

struct DistanceRegression {
  std::string Measure;  // "abs_d", "abs_d_prime", "abs_d_prime_star", "r2"
  int32_t Points = 0;
  std::optional<double> Intercept;  // a; none with 2 points or fewer
  std::optional<double> Slope;      // b

  template <class V>
  void Visit(V& v) const {
    v.Text("measure", Measure);
    v.Integer("points", Points);
    v.Optional("intercept", Intercept);
    v.Optional("slope", Slope);
  }
};

// Y = a + bX over the points (x[i], y[i]). What the regression cannot compute throws
// StatsError with its words.
[[nodiscard]] DistanceRegression FitOnDistance(std::string measure, const std::vector<double>& x,
                                               const std::vector<double>& y);

}  // namespace ovelt

#pragma once
// The search for Hudson's C: a walk along a fixed grid, finer near 0 (steps of 0.001 up to
// 0.009, 0.01 up to 0.09, 0.1 up to 99.9, then 1 up to 10000), that stops at the first point
// where g(C, n) falls below the target. There is no interpolation between grid points.

#include <cstdint>
#include <functional>
#include <string>

namespace ovelt {

// The grid point after `c`. The bounds are tested in order on the accumulated sum, so a bound
// met exactly takes the smaller step.
[[nodiscard]] double NextGridPoint(double c);

struct CGridResult {
  double C = 0.0;           // the grid point where the walk stopped
  bool AboveLimit = false;  // the walk passed 10000 without g falling below the target
  int32_t Steps = 0;        // grid points visited
};

// The first grid point with g(C, n) < `target`, or the first one beyond 10000. `g` is the
// function walked (HudsonG for n); a value that is not finite throws std::domain_error.
[[nodiscard]] CGridResult SearchC(double target, const std::function<double(double)>& g);

// The mask of the report for a C within the grid: "0.000" up to 0.009, "0.00" up to 0.09,
// "0.0" up to 99.9, "0" beyond.
[[nodiscard]] std::string CMask(double c);

}  // namespace ovelt

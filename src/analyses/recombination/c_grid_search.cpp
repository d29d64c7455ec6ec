#include "analyses/recombination/c_grid_search.h"

#include <cmath>
#include <stdexcept>

namespace ovelt {

namespace {
constexpr double kLimit = 10000.0;
}  // namespace

double NextGridPoint(double c) {
  if (c >= 0.0 && c <= 0.009) return c + 0.001;
  if (c >= 0.009 && c <= 0.09) return c + 0.01;
  if (c >= 0.09 && c <= 99.9) return c + 0.1;
  if (c >= 99.9 && c <= kLimit) return c + 1.0;
  return c;  // beyond the grid: the walk has already stopped
}

CGridResult SearchC(double target, const std::function<double(double)>& g) {
  CGridResult r;
  for (;;) {
    r.C = NextGridPoint(r.C);
    ++r.Steps;
    const double value = g(r.C);
    if (!std::isfinite(value)) throw std::domain_error("g(C,n) is not finite");
    if (value < target || r.C > kLimit) break;
  }
  r.AboveLimit = r.C > kLimit;
  return r;
}

std::string CMask(double c) {
  if (c >= 0.0 && c <= 0.009) return "0.000";
  if (c <= 0.09) return "0.00";
  if (c <= 99.9) return "0.0";
  return "0";
}

}  // namespace ovelt

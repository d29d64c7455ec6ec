#include "analyses/linkage/distance_regression.h"

#include "stats/regression.h"

namespace ovelt {

DistanceRegression FitOnDistance(std::string measure, const std::vector<double>& x,
                                 const std::vector<double>& y) {
  DistanceRegression out;
  out.Measure = std::move(measure);
  out.Points = static_cast<int32_t>(x.size());
  if (out.Points <= 2) return out;
  double slope = 0.0;
  double t = 0.0;
  out.Intercept = Regression(x, y, slope, t);
  out.Slope = slope;
  return out;
}

}  // namespace ovelt

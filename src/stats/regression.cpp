#include "stats/regression.h"

#include <algorithm>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {

double Regression(std::span<const double> x, std::span<const double> y, double& slope, double& t) {
  const size_t count = x.size();
  if (count == 0 || y.size() != count) throw StatsError(kRegressionFailureText);
  const double m = static_cast<double>(count);

  double sx = 0.0, sy = 0.0, sxx = 0.0, syy = 0.0, sxy = 0.0;
  for (size_t i = 0; i < count; ++i) {
    sx += x[i];
    sy += y[i];
    sxx += x[i] * x[i];
    syy += y[i] * y[i];
    sxy += x[i] * y[i];
  }
  // Rounding can leave a tiny Qx when every x is the same; the spread of x is then 0.
  const bool xConstant = std::all_of(x.begin(), x.end(), [&](double v) { return v == x[0]; });
  const double qx = xConstant ? 0.0 : sxx - sx * sx / m;
  const double qy = syy - sy * sy / m;
  const double qxy = sxy - sx * sy / m;

  slope = qx != 0.0 ? qxy / qx : 0.0;
  const double intercept = sy / m - slope * sx / m;

  double standardError = 0.0;
  if (qx != 0.0) {
    if (count <= 2) throw StatsError(kRegressionFailureText);
    const double variance = (qy - qxy * qxy / qx) / (m - 2.0);
    standardError = variance < 0.0 ? 0.0 : std::sqrt(variance / qx);
  }
  t = standardError != 0.0 ? slope / standardError : 0.0;
  return intercept;
}

}  // namespace ovelt

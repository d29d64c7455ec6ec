#pragma once
// Least-squares regression of y on x, with the t statistic of the slope (slope / its standard
// error, m - 2 degrees of freedom):
//   Qx = Sxx - Sx^2/m, Qy = Syy - Sy^2/m, Qxy = Sxy - Sx Sy/m,
//   slope = Qxy/Qx, intercept = mean y - slope mean x,
//   SE = sqrt(((Qy - Qxy^2/Qx) / (m - 2)) / Qx), t = slope / SE.
// All x equal: slope 0, t 0, intercept the mean of y. A residual variance below 0 (rounding
// on a perfect fit) or of 0 gives SE 0 and t 0.
// Callers give more than 2 points. What cannot be computed (no points, x and y of different
// lengths, two points with different x) throws StatsError with the words
// "Error computing Regresion statistics.".

#include <span>

namespace ovelt {

// Returns the intercept.
[[nodiscard]] double Regression(std::span<const double> x, std::span<const double> y, double& slope,
                                double& t);

}  // namespace ovelt

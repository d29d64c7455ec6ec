#pragma once
// A plain Ewens source for the tests: P(K = j) = |s(n, j)| theta^j / (theta (theta + 1) ...
// (theta + n - 1)) from the unsigned Stirling numbers of the first kind in doubles, which is
// exact enough for the small samples of the tests.

#include <cmath>
#include <vector>

#include "tools/ewens_tab.h"

namespace ovelt::testing {

inline std::vector<double> EwensByStirling(int n, double theta) {
  std::vector<std::vector<double>> s(n + 1, std::vector<double>(n + 1, 0.0));
  s[0][0] = 1;
  for (int m = 1; m <= n; ++m)
    for (int j = 1; j <= m; ++j) s[m][j] = s[m - 1][j - 1] + (m - 1) * s[m - 1][j];
  double rising = 1;
  for (int i = 0; i < n; ++i) rising *= theta + i;
  std::vector<double> p(n + 1, 0.0);
  for (int j = 1; j <= n; ++j) p[j] = s[n][j] * std::pow(theta, j) / rising;
  return p;
}

inline EwensTail StirlingTail(int32_t n, int32_t h, double theta) {
  const std::vector<double> p = EwensByStirling(n, theta);
  double at_most = 0, at_least = 0;
  for (int j = 1; j <= n; ++j) {
    if (j <= h) at_most += p[j];
    if (j >= h) at_least += p[j];
  }
  return {p[h], at_most, std::log(at_least / (1 - at_least))};
}

}  // namespace ovelt::testing

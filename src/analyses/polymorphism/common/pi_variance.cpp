#include "analyses/polymorphism/common/pi_variance.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ovelt {

namespace {

// Below this size a product of two distances is exact in a 32-bit float (4096^2 = 2^24).
constexpr int64_t kExactFloatFactor = 4096;

// sum over i, over j != i and m >= j, m != i, of d(i,j) d(i,m), doubled when j != m: the
// pairs (j, m) of one row taken once each, with row[i] = 0 so that i adds nothing. With exact
// products this is the square of the row sum; past that size each product is rounded to a
// 32-bit float, as the matrix cells were, and only the sums are carried in 64 bits.
double RowProductSum(const std::vector<float>& row, int32_t n, bool exact) {
  if (exact) {
    double sum = 0.0;
    for (int32_t j = 1; j <= n; ++j) sum += row[static_cast<size_t>(j)];
    return sum * sum;
  }
  const float* r = row.data();
  double diagonal = 0.0, cross = 0.0;
  for (int32_t j = 1; j <= n; ++j) {
    const float a = r[j];
    if (a == 0.0f) continue;
    diagonal += static_cast<float>(a * a);
    // Four running sums keep the additions independent of one another.
    double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0;
    int32_t m = j + 1;
    for (; m + 3 <= n; m += 4) {
      s0 += static_cast<float>(a * r[m]);
      s1 += static_cast<float>(a * r[m + 1]);
      s2 += static_cast<float>(a * r[m + 2]);
      s3 += static_cast<float>(a * r[m + 3]);
    }
    for (; m <= n; ++m) s0 += static_cast<float>(a * r[m]);
    cross += (s0 + s1) + (s2 + s3);
  }
  return diagonal + 2.0 * cross;
}

}  // namespace

PiSamplingVariance SamplingVarianceOfPi(const PairCounts& d, int32_t net_sites,
                                        const PolyGauge& gauge) {
  const int32_t n = d.n();
  const double nd = n;
  const double l = net_sites;
  const auto l2_single = static_cast<float>(l * l);

  double total = 0.0;
  int64_t largest = 0;
  for (int32_t i = 1; i <= n; ++i)
    for (int32_t j = i + 1; j <= n; ++j) {
      const int64_t dij = d.at(i, j);
      total += static_cast<double>(dij);
      largest = std::max(largest, dij);
    }
  RaiseTo(gauge, 33);
  const double dbar = total / (nd * (nd - 1.0) / 2.0);
  const double a = dbar * dbar * (nd - 1.0) * (nd - 1.0) / (4.0 * l * l * nd * nd);

  const bool exact = largest <= kExactFloatFactor;
  std::vector<float> row(static_cast<size_t>(n) + 1, 0.0f);
  double b = 0.0;
  for (int32_t i = 1; i <= n; ++i) {
    for (int32_t j = 1; j <= n; ++j)
      row[static_cast<size_t>(j)] = j == i ? 0.0f : static_cast<float>(d.at(i, j));
    b += RowProductSum(row, n, exact);
    RaiseTo(gauge, 33 + static_cast<int>(33.0 * i / n));
  }
  b = b / l2_single / (nd * nd * nd) * (nd - 2.0);

  double c = 0.0;
  for (int32_t i = 1; i <= n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      const auto dij = static_cast<float>(d.at(i, j));
      c += dij * dij;
    }
    RaiseTo(gauge, 67 + static_cast<int>(33.0 * i / n));
  }
  c = c / l2_single / (nd * nd);

  PiSamplingVariance v;
  v.Variance = ((6.0 - 4.0 * nd) * a + b + c) * 4.0 / (nd * (nd - 1.0));
  v.StdDev = std::sqrt(v.Variance);
  return v;
}

}  // namespace ovelt

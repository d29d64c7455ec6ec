#include "analyses/polymorphism/size_changes/size_change_k_variance.h"

#include <cmath>

namespace ovelt {

namespace {

double CoefficientOfVariation(double variance, double k) {
  return k > 0.0 && variance > 0.0 ? std::sqrt(variance) / k : 0.0;
}

void FillCoefficients(KVariance& v, double k) {
  v.TotalCV = CoefficientOfVariation(v.Total, k);
  v.StochasticCV = CoefficientOfVariation(v.Stochastic, k);
  v.SamplingCV = CoefficientOfVariation(v.Sampling, k);
}

}  // namespace

ExpectedKVariances ExpectedVariancesOfK(int32_t n, double k) {
  ExpectedKVariances v;
  const double nn = n;
  const double denominator = 11.0 * nn * nn - 7.0 * nn + 6.0;
  const double k2 = k * k;
  v.NoRecombination.Total = (3.0 * nn * (nn + 1.0) * k + 2.0 * (nn * nn + nn + 3.0) * k2) /
                            denominator;
  v.NoRecombination.Stochastic =
      ((3.0 * nn * nn - 3.0 * nn + 2.0) * k + 2.0 * nn * (nn - 1.0) * k2) / denominator;
  v.NoRecombination.Sampling =
      (2.0 * (3.0 * nn - 1.0) * k + 2.0 * (2.0 * nn + 3.0) * k2) / denominator;
  v.FreeRecombination.Stochastic = k / 3.0;
  if (n >= 2) {
    v.FreeRecombination.Total = (nn + 1.0) * k / (3.0 * (nn - 1.0));
    v.FreeRecombination.Sampling = 2.0 * k / (3.0 * (nn - 1.0));
  }
  FillCoefficients(v.NoRecombination, k);
  FillCoefficients(v.FreeRecombination, k);
  return v;
}

}  // namespace ovelt

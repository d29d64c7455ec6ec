#pragma once
// Expected variances of the average number of pairwise differences k in a sample of n
// sequences, each estimated from k itself (Tajima 1983, 1993):
//   no recombination: total (3 n (n + 1) k + 2 (n^2 + n + 3) k^2) / (11 n^2 - 7 n + 6),
//     stochastic ((3 n^2 - 3 n + 2) k + 2 n (n - 1) k^2) / (11 n^2 - 7 n + 6),
//     sampling (2 (3 n - 1) k + 2 (2 n + 3) k^2) / (11 n^2 - 7 n + 6);
//   free recombination: total (n + 1) k / (3 (n - 1)), stochastic k / 3,
//     sampling 2 k / (3 (n - 1)).
// Each coefficient of variation is Sqr(V) / k. k of 0 gives variances 0 and C.V.s 0; n below
// 2 gives 0 for the free-recombination terms that divide by n - 1.

#include <cstdint>

namespace ovelt {

struct KVariance {
  double Total = 0.0;
  double Stochastic = 0.0;
  double Sampling = 0.0;
  double TotalCV = 0.0;
  double StochasticCV = 0.0;
  double SamplingCV = 0.0;
};

struct ExpectedKVariances {
  KVariance NoRecombination;
  KVariance FreeRecombination;

  // The variances under the keys that DNA polymorphism gives the same estimates.
  template <class V>
  void Visit(V& v) const {
    v.Number("var_k_no_recombination", NoRecombination.Total);
    v.Number("cv_k_no_recombination", NoRecombination.TotalCV);
    v.Number("var_k_stochastic_no_recombination", NoRecombination.Stochastic);
    v.Number("cv_k_stochastic_no_recombination", NoRecombination.StochasticCV);
    v.Number("var_k_sampling_no_recombination", NoRecombination.Sampling);
    v.Number("cv_k_sampling_no_recombination", NoRecombination.SamplingCV);
    v.Number("var_k_free_recombination", FreeRecombination.Total);
    v.Number("cv_k_free_recombination", FreeRecombination.TotalCV);
    v.Number("var_k_stochastic_free_recombination", FreeRecombination.Stochastic);
    v.Number("cv_k_stochastic_free_recombination", FreeRecombination.StochasticCV);
    v.Number("var_k_sampling_free_recombination", FreeRecombination.Sampling);
    v.Number("cv_k_sampling_free_recombination", FreeRecombination.SamplingCV);
  }
};

[[nodiscard]] ExpectedKVariances ExpectedVariancesOfK(int32_t n, double k);

}  // namespace ovelt

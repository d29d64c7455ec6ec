#pragma once
// Sampling variance of the nucleotide diversity Pi, from the pairwise numbers of differences
// d(i, j) of the n sequences as a U-statistic over pairs (Nei 1987, Tajima 1993):
//   A = Dbar^2 (n-1)^2 / (4 L^2 n^2),  B = (n-2) / (L^2 n^3) sum_i (sum_{j != i} d(i,j))^2,
//   C = sum_{i<j} d(i,j)^2 / (L^2 n^2),  V(Pi) = ((6 - 4n) A + B + C) 4 / (n (n - 1)),
// Dbar the mean of d over the pairs, L the net sites. n = 2 gives finite values (n - 2 = 0).
// The caller guarantees L > 0.

#include <cstdint>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/poly_gauge.h"

namespace ovelt {

inline const char* const kSamplingVarianceFailure =
    "I can't estimate the sampling variance of Pi. Try to reduce the number of programs "
    "running, or try to increase the RAM or virtual memory";

struct PiSamplingVariance {
  double Variance = 0.0;
  double StdDev = 0.0;

  template <class V>
  void Visit(V& v) const {
    v.Number("var_pi", Variance);
  }
};

// `d` holds the differences over the sites of class 1 to 4 (PairwiseDifferences). The pair
// terms are 32-bit floats, as the distance matrix holds them, and L^2 is rounded to a 32-bit
// float in B and C. The gauge rises from 33 to 100 (the distances take 0 to 33).
[[nodiscard]] PiSamplingVariance SamplingVarianceOfPi(const PairCounts& d, int32_t net_sites,
                                                      const PolyGauge& gauge = {});

}  // namespace ovelt

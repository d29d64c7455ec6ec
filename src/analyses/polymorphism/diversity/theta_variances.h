#pragma once
// The variance block of a polymorphism report: Watterson's theta from S (Watterson 1975) and
// from Eta, their variances with no and with free recombination, theta under the finite sites
// model (Tajima 1996), and the stochastic, sampling and total variances of the average number
// of differences k (Tajima 1993). a1 and a2 are the harmonic sums over i = 1..n-1 of 1/i and
// 1/i^2. With S = 0 every theta and its variances are 0; a finite-sites value whose
// denominator is 0 is a division by zero (StatsError).

#include <cstdint>

#include "analyses/polymorphism/common/poly_stats.h"

namespace ovelt {

inline const char* const kTajimaVariancesFailure = "Error computing Tajima's Variances : ";

struct ThetaVariances {
  // Per site.
  double ThetaEta = 0.0;         // Theta from Eta
  double ThetaW = 0.0;           // Theta-W = S / a1 / L
  double VarThetaNoRec = 0.0;    // Vn / L^2
  double VarThetaFreeRec = 0.0;  // Vf / L^2
  // Finite sites model, per site.
  double FiniteFromPi = 0.0;
  double FiniteFromS = 0.0;
  double FiniteFromEta = 0.0;
  // Average number of differences, k' = L Pi, and its variances.
  double K = 0.0;
  double StochasticNoRec = 0.0;
  double SamplingNoRec = 0.0;
  double TotalNoRec = 0.0;
  double StochasticFreeRec = 0.0;
  double SamplingFreeRec = 0.0;
  double TotalFreeRec = 0.0;
  // Per sequence.
  double ThetaWSequence = 0.0;   // S / a1
  double VnSequence = 0.0;       // (S a1^2 + a2 S^2) / (a1^2 (a1^2 + a2))
  double VfSequence = 0.0;       // S / a1^2
};

// For `n` sequences (2 or more) and the statistics of the region (L above 0).
[[nodiscard]] ThetaVariances ComputeThetaVariances(int32_t n, const PolyStats& stats);

}  // namespace ovelt

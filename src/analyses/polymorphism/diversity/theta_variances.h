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

  // Flat among the result's keys; k' is the result's k.
  template <class V>
  void Visit(V& v) const {
    v.Number("theta_eta_site", ThetaEta);
    v.Number("theta_site", ThetaW);
    v.Number("var_theta_site_no_recombination", VarThetaNoRec);
    v.Number("var_theta_site_free_recombination", VarThetaFreeRec);
    v.Number("finite_sites_theta_pi", FiniteFromPi);
    v.Number("finite_sites_theta_s", FiniteFromS);
    v.Number("finite_sites_theta_eta", FiniteFromEta);
    v.Number("var_k_no_recombination", TotalNoRec);
    v.Number("var_k_stochastic_no_recombination", StochasticNoRec);
    v.Number("var_k_sampling_no_recombination", SamplingNoRec);
    v.Number("var_k_free_recombination", TotalFreeRec);
    v.Number("var_k_stochastic_free_recombination", StochasticFreeRec);
    v.Number("var_k_sampling_free_recombination", SamplingFreeRec);
    v.Number("theta_sequence", ThetaWSequence);
    v.Number("var_theta_sequence_no_recombination", VnSequence);
    v.Number("var_theta_sequence_free_recombination", VfSequence);
  }
};

// For `n` sequences (2 or more) and the statistics of the region (L above 0).
[[nodiscard]] ThetaVariances ComputeThetaVariances(int32_t n, const PolyStats& stats);

}  // namespace ovelt

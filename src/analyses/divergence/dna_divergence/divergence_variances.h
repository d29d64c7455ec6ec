#pragma once
// Sampling variances of the Jukes and Cantor Pi(1), Pi(2), Dxy and Da, from the distances of
// every pair (the variance of a mean over pairs of sequences, Nei and Jin 1989; Nei 1987,
// eqs. 10.7 and 10.22). With n1, n2 the sequences, K1, K2 the means within and D the mean
// between, d1 the distances within population 1 and d those between the populations:
//   Var(Pi1) = 4 / ((n1 - 1) n1) x [(6 - 4 n1) t + (n1 - 2) A / n1^3 + B / n1^2],
//     t = ((n1 - 1) K1 / (2 n1))^2, A = sum_i sum_{j != i} sum_{k != i} d1[i,j] d1[i,k],
//     B = sum_{i < j} d1[i,j]^2;
//   Var(Dxy) = (E1 + E2 + E0 + E3) / (n1 n2), T0 = sum_{i,j} d[i,j]^2,
//     T1 = sum_j sum_i sum_i2 d[i,j] d[i2,j], T2 = sum_i sum_j sum_j2 d[i,j] d[i,j2],
//     E0 = (1 - n1 - n2) D^2, E1 = (n1 - 1)(T1 + T0) / (n1^2 n2),
//     E2 = (n2 - 1)(T2 + T0) / (n2^2 n1), E3 = T0 / (n1 n2)
//     (T1 and T2 already hold the terms i2 = i and j2 = j: the T0 beside them is deliberate);
//   Cov(Dxy, K1) = (2 / n1) [C1 / (n1^2 n2) - ((n1 - 1) K1 / n1) D],
//     C1 = sum_{i, j in 1} sum_{k in 2} d1[i,j] d[i,k], and Cov(Dxy, K2) likewise;
//   Var(Da) = Var(Dxy) + (Var(Pi1) + Var(Pi2)) / 4 - (Cov1 + Cov2) / 2.
// The sums are O(n^3) direct loops over the pair tables.

#include <optional>

#include "analyses/divergence/dna_divergence/divergence_jukes_cantor.h"
#include "command/progress.h"

namespace ovelt {

struct DivergenceVariances {
  // None where the formula cannot be evaluated (a population of one sequence divides by 0).
  std::optional<double> VarPi1, VarPi2, VarDxy;
  // Both 0 unless the three variances above are all above 0.
  double Cov1 = 0.0, Cov2 = 0.0;
  double VarDa = 0.0;  // the undetermined variances count 0
};

// Var(Pi) of one population from its distances `within` (square) and mean `k`.
[[nodiscard]] std::optional<double> VarianceWithin(const PairMatrix& within, double k);

// Var(Dxy) from the distances `between` (n1 x n2) and their mean `d`.
[[nodiscard]] std::optional<double> VarianceBetween(const PairMatrix& between, double d);

// Cov(Dxy, K1) of population 1 (`within` n1 x n1, `between` n1 x n2); for population 2 pass
// `second` true, `within` n2 x n2 and the same `between`.
[[nodiscard]] double CovarianceWithin(const PairMatrix& within, const PairMatrix& between,
                                      double k, double d, bool second);

// All of them from the Jukes and Cantor step; undetermined means count 0.
[[nodiscard]] DivergenceVariances ComputeDivergenceVariances(const DivergenceJukesCantor& jc,
                                                             const Progress& progress = {});

}  // namespace ovelt

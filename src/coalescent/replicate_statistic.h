#pragma once
// The statistic of one simulated replicate, by code, with the same formulas as the analyses of
// data. A replicate in which the statistic cannot be computed is failed: no variation for the
// statistics that need it (Pi = 0 for raggedness, Fs and R2; no segregating site for Tajima's D
// and Fu and Li's tests), Fs out of range, or the not-computed mark of a statistic on the
// haplotype matrix (fewer than two segregating sites).

#include <cstdint>
#include <optional>
#include <vector>

#include "coalescent/haplotype_matrix.h"
#include "coalescent/pair_differences.h"

namespace ovelt {

// The constants of a code for the run's sample size, computed once per run.
struct StatisticConstants {
  int32_t n = 0;
  double a1 = 0.0;
  double TajimaE1 = 0.0, TajimaE2 = 0.0;
  double StarUD = 0.0, StarVD = 0.0, StarUF = 0.0, StarVF = 0.0;
  double OutUD = 0.0, OutVD = 0.0, OutUF = 0.0, OutVF = 0.0;
};
[[nodiscard]] StatisticConstants ConstantsFor(int code, int32_t n);

// What a replicate leaves for its statistic: S, Pi, and the tables the code needs.
struct ReplicateData {
  int32_t S = 0;
  double Pi = 0.0;
  const PairDifferenceTable* Pairs = nullptr;  // codes that use the classes or the mismatches
  const HaplotypeMatrix* Matrix = nullptr;     // codes on the matrix
  const std::vector<int16_t>* Flips = nullptr; // the linkage codes
};

// Working storage of ReplicateStatistic, kept between replicates.
struct StatisticScratch {
  std::vector<int32_t> FirstMembers, Sizes, Histogram, Spectrum;
  std::vector<double> Singletons;
};

// v of the replicate for `code` (without the 1000); nullopt when the replicate failed.
[[nodiscard]] std::optional<double> ReplicateStatistic(int code, const StatisticConstants& k,
                                                       const ReplicateData& r,
                                                       StatisticScratch& scratch);

// Ramos-Onsins and Rozas' U(i) of a 0/1 matrix, index 1..n: a column whose minority is one
// sequence gives 1 to that sequence. In the smallest samples a singleton cannot be told from
// its complement and the count is shared: with n = 2 each differing column gives 1/2 to both,
// with n = 3 each column gives 1/3 to each, with n = 4 a 2 : 2 column gives 1/4 to each.
void SingletonsPerSequence(const HaplotypeMatrix& m, std::vector<double>& u);

}  // namespace ovelt

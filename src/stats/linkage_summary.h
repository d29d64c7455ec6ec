#pragma once
// Summaries of the linkage disequilibrium between the segregating sites of a 0/1 haplotype
// matrix: ZnS, the mean R^2 over all pairs of sites (Kelly 1997); Za, the mean R^2 over adjacent
// sites; and ZZ = Za - ZnS (Rozas et al. 2001). With fewer than two sites none is determined.

#include <cstdint>
#include <optional>
#include <vector>

#include "stats/binary_columns.h"

namespace ovelt {

// The two-site haplotype counts of a pair of sites, each site's more frequent allele first:
// h11 both major, h12 major then minor, h21 minor then major, h22 both minor.
struct HaplotypePairCounts {
  int32_t h11 = 0;
  int32_t h12 = 0;
  int32_t h21 = 0;
  int32_t h22 = 0;
};

struct PairDisequilibrium {
  double D = 0.0;
  double R = 0.0;
};

// D = (h11 h22 - h12 h21) / n^2 with n the number of sequences, and
// R = D / (pA qA pB qB)^0.5 with pA = (h11 + h12) / n, qA = (h21 + h22) / n, pB = (h11 + h21) / n,
// qB = (h12 + h22) / n. A monomorphic site (a zero allele frequency) has D = 0 and R = 0, and so
// does n = 0.
[[nodiscard]] PairDisequilibrium DisequilibriumFromCounts(const HaplotypePairCounts& h,
                                                          int32_t n);

struct LinkageSummary {
  std::optional<double> ZnS;
  std::optional<double> Za;
  std::optional<double> ZZ;
};

// Over the columns of `m`, in their order. `major_flip`[j] is 1 when the mutant (1) of column j
// is the more frequent allele, so that the counts are read major allele first. R^2 does not
// depend on that orientation; it fixes the sign of D and R. A pair with a monomorphic column
// counts with R^2 = 0. Throws StatsError when `major_flip` does not have one entry per column.
[[nodiscard]] LinkageSummary LinkageFromColumns(const BinaryColumnsView& m,
                                                const std::vector<int16_t>& major_flip);

}  // namespace ovelt

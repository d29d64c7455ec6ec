#pragma once
// One pair of analysed sites: its two-site haplotype counts and D, D', R, R^2.
//
// Each site is a bit set of the sequences that carry its nucleotide in position 1, so the four
// counts of a pair come from one AND and popcount over the two sets (h11) and the two sites'
// own counts: h12 = A1 - h11, h21 = B1 - h11, h22 = n - A1 - B1 + h11.

#include <cstdint>
#include <vector>

#include "analyses/linkage/allele_pairs.h"
#include "core/seq_matrix.h"
#include "stats/column_bits.h"
#include "stats/linkage_summary.h"

namespace ovelt {

struct PairMeasures {
  double D = 0.0;
  double DPrime = 0.0;
  double R = 0.0;
  double R2 = 0.0;
};

// D and R as in stats/linkage_summary.h (D over n^2, n the number of sequences); D' = D / Dmax
// (Lewontin 1964), with Dmax = min(qB pA, qA pB) for D >= 0 (D = 0 included) and
// min(pA pB, qA qB) for D < 0, so that D' keeps the sign of D. A Dmax of 0 (a monomorphic site,
// which an analysed pair never has) gives D' = 0.
[[nodiscard]] PairMeasures MeasuresFromCounts(const HaplotypePairCounts& h, int32_t n);

// The bit sets of the analysed sites.
class AlleleBits {
 public:
  // Site k of `sites` is bit set k: sequence s (1..n) is bit s - 1 when it carries the
  // nucleotide of position 1.
  AlleleBits(const SeqMatrix& matrix, int32_t n, const AnalysedSites& sites);

  [[nodiscard]] HaplotypePairCounts Counts(int32_t a, int32_t b) const {
    const int32_t both = bits_.CountBoth(a, b);
    const int32_t ones_a = first_counts_[static_cast<std::size_t>(a)];
    const int32_t ones_b = first_counts_[static_cast<std::size_t>(b)];
    return {both, ones_a - both, ones_b - both, n_ - ones_a - ones_b + both};
  }

 private:
  int32_t n_ = 0;
  ColumnBits bits_;
  std::vector<int32_t> first_counts_;
};

}  // namespace ovelt

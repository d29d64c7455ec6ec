#pragma once
// The mismatch distribution (Rogers and Harpending 1992): the number of pairs of sequences by
// their number of nucleotide differences over the sites of a region, sites with a gap or
// missing data in the first selection left out. With it, the observed variance of the
// pairwise differences around their mean k. One pair (n = 2) gives a variance of 0.

#include <cstdint>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "core/selection.h"

namespace ovelt {

struct MismatchDistribution {
  std::vector<int64_t> Mismatch;  // index 0..MaxDiff: pairs with that many differences
  int32_t MaxDiff = 0;
  int64_t Pairs = 0;  // C = n (n - 1) / 2
};

// Over from..to of the first selection (`SelOutCount` sequences). The gauge rises to 100.
[[nodiscard]] MismatchDistribution ComputeMismatch(const Selection& sel, int32_t from, int32_t to,
                                                   const PolyGauge& gauge = {});

// Sum over the pairs of (d - k)^2 / (C - 1); 0 when there is one pair or none.
[[nodiscard]] double MismatchVariance(const MismatchDistribution& m, double k);

// The mean of the pairwise differences: sum of i Mismatch(i) / C; 0 with no pair.
[[nodiscard]] double MismatchMean(const MismatchDistribution& m);

}  // namespace ovelt

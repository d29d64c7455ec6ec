#pragma once
// Harpending's (1994) raggedness statistic of a mismatch distribution:
//   r = sum for i = 1..MaxDiff + 1 of (x(i) - x(i - 1))^2,
// with x(i) the share of pairs with i differences and x(MaxDiff + 1) = 0; the formula itself is
// RaggednessFromHistogram of stats/raggedness.h. Smooth, unimodal distributions (growing
// populations) give small values. No pair gives 0.

#include "analyses/polymorphism/size_changes/mismatch_distribution.h"

namespace ovelt {

[[nodiscard]] double Raggedness(const MismatchDistribution& m);

}  // namespace ovelt

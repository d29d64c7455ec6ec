#pragma once
// Mean absolute error between an observed mismatch distribution and the one expected in a
// population of constant size with theta = k (Rogers and Harpending 1992):
//   MAE = sum over i = 0..MaxDiff - 1 of |x(i) - F(k, i)| + |x(MaxDiff) - (1 - sum of those F)|,
// x(i) the share of pairs with i differences: the last class takes the whole expected tail.
// No pair gives 0.

#include "analyses/polymorphism/size_changes/mismatch_distribution.h"

namespace ovelt {

[[nodiscard]] double MeanAbsoluteError(const MismatchDistribution& m, double k);

}  // namespace ovelt

#pragma once
// The variance of the sample distribution of Kij (Hudson 1987): Kij is the number of
// polymorphic sites at which sequences i and j differ, and the variance is taken over all n x n
// entries of the matrix of Kij, the n diagonal entries Kii = 0 included, around their mean
// k' = (n - 1) k / n:
//   Sk^2 = (2 T + n k'^2) / n^2,   T = sum over i < j of (Kij - k')^2.

#include <cstdint>
#include <functional>
#include <vector>

#include "analyses/polymorphism/common/polymorphic_sites.h"
#include "core/selection.h"

namespace ovelt {

// Sk^2 over `sites` of the first selection (PolymorphicSites of the region), with k' as given
// (single precision, as kept). `gauge` is raised to 30 i / n after each sequence i.
[[nodiscard]] float KijVariance(const Selection& sel, const std::vector<int32_t>& sites,
                                float k_prime, const std::function<void(int)>& gauge = {});

}  // namespace ovelt

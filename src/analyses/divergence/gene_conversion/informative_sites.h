#pragma once
// Step one of the detection of gene conversion tracts between two populations (Betrán et al.
// 1997): the sites that may tell a tract. A site where both populations are
// monomorphic for different nucleotides is informative when either population has five
// sequences or more; otherwise a site (no gap in either population) is informative when, for some
// nucleotide of A, T, C, G with frequencies x in population 1 and y in population 2, x >= 3y with
// y <= 0.2, or y >= 3x with x <= 0.2. The test runs over all four nucleotides, those absent
// from both populations included (0 >= 3 x 0), so that every site polymorphic in either
// population qualifies.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// One flag per site of the file (index 0 unused), set over from..to of the two classified
// selections of `sel`.
[[nodiscard]] std::vector<uint8_t> MarkInformativeSites(const Selection& sel, int32_t from,
                                                        int32_t to);

}  // namespace ovelt

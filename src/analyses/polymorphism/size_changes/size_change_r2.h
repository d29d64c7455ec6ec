#pragma once
// The singleton counts U(i) per sequence that the R2 statistic of Ramos-Onsins and Rozas (2002)
// reads; the formula itself is R2Statistic of stats/r2_statistic.h. Without an outgroup a
// singleton cannot be told from its complement in the smallest samples, so their count is
// shared: with n = 2 a differing site gives half a mutation to both sequences; with n = 3 a site
// split 2 : 1 gives a third to each sequence; with n = 4 a site split 2 : 2 gives a quarter to
// each. Otherwise each nucleotide found once at a site gives 1 to its sequence.

#include <cstdint>
#include <vector>

#include "core/selection.h"
#include "stats/r2_statistic.h"

namespace ovelt {

// U(i) over from..to of the first selection, index 1..n (index 0 unused); sites with a gap or
// missing data are skipped.
[[nodiscard]] std::vector<double> SingletonsPerSequence(const Selection& sel, int32_t from,
                                                        int32_t to);

}  // namespace ovelt

#pragma once
// The sites of a region at which sequences can tell haplotypes apart: those of class 1 to 4 in
// the first selection. Monomorphic sites (class 0) cannot differ and sites with a gap or
// missing data (class 5) are left out of every comparison between sequences.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// Site numbers of from..to with class 1 to 4 in `SelSiteClass1`, ascending.
[[nodiscard]] std::vector<int32_t> PolymorphicSites(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt

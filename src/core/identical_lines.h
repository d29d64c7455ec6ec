#pragma once
// Largest group of identical sequences in the first selection over a region.

#include <cstdint>
#include <string>

#include "core/selection.h"

namespace ovelt {

inline const std::string kIdenticalLinesError = "Error computing BuscaLineasIdenticas()";

// Two sequences are identical when they agree at every polymorphic site of `first`..`last`
// (class 1 to 4 in `SelSiteClass1`): monomorphic sites cannot tell them apart and sites with a
// gap or missing data (class 5) are left out of the comparison. Each sequence not yet grouped
// opens a group that every later identical sequence joins; the result is the size of the
// largest group (1 when all differ, 0 with no sequence).
[[nodiscard]] int32_t BuscaLineasIdenticas(const Selection& sel, int32_t first, int32_t last);

}  // namespace ovelt

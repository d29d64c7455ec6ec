#pragma once
// The selection layer: the sequences of one analysis run. A set index above 0 takes the
// included members of that sequence set, in the set's order, straight from the file layer; an
// index of 0 or below takes all included sequences, as copies of the included layer that share
// their cells (no sequence is copied until someone writes to it).

#include <cstdint>

#include "core/active_data.h"

namespace ovelt {

// First selection with its classes and diversities; `SelOutCount` := `SelCount1`.
void SelectOneSet(ActiveData& ad, int16_t set);

// First and second selections, matrices and names only (the caller classifies when needed).
void SelectTwoSets(ActiveData& ad, int16_t set1, int16_t set2);

// First selection, matrix and names only.
void SelectFirstSetOnly(ActiveData& ad, int16_t set1);

// Third selection: `SelMatrix3`, `SelNames3`, `SelCount3`.
void SelectThirdSet(ActiveData& ad, int16_t set3);

}  // namespace ovelt

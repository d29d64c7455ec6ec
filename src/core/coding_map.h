#pragma once
// The coding map: which sites code, and in which codon position. Edited by the dialog of coding
// regions, which works region by region and then, on leaving, rebuilds the coding tables once.

#include <cstdint>

#include "core/active_data.h"

namespace ovelt {

// The last site with a codon position above 0; 0 when no site codes.
[[nodiscard]] int32_t BuscaUltimoCodSitio(const ActiveData& ad);

// Sites `from`..`to` become noncoding; `LastCodingSite` is found again. Returns true when a
// position changed. Throws `InvalidRegion` for a region outside 1..`NumSites`.
bool AssignNonCodingRegion(ActiveData& ad, int32_t from, int32_t to);

// Sites `from`..`to` become coding: `from` takes `first_position` (1, 2 or 3; anything else
// reads as 1) and the following sites continue the cycle 1, 2, 3, 1, ... up to `to`.
// `LastCodingSite` := max(itself, `to`). Returns true when a position changed. Throws
// `InvalidRegion` for a region outside 1..`NumSites`.
bool AssignCodingRegion(ActiveData& ad, int32_t from, int32_t to, int first_position);

// Leaving the dialog: a genetic code index of 0 becomes 1, the region returns to 1..`NumSites`,
// and when something `changed` a coding region counts as assigned and the tables are rebuilt.
void LeaveForm14(ActiveData& ad, bool changed);

// The coding state of a file that brings none: all sites noncoding, no region assigned, the
// nuclear universal code.
void ResetCodingState(ActiveData& ad);

}  // namespace ovelt

#pragma once
// Bringing the included layer's site classes, diversities and coding tables up to date after a
// change of the included sequences or of `GapsInSets`.

#include "core/active_data.h"

namespace ovelt {

// Reclassifies `SiteClass` from `RawSiteClass` over `IncMatrix`, recomputes `SiteDiversity`,
// then rebuilds the coding tables.
void ActualizaCambiosGaps(ActiveData& ad);

}  // namespace ovelt

#include "core/gap_update.h"

#include "core/coding_flag.h"
#include "core/site_class.h"
#include "core/site_diversity.h"

namespace ovelt {

void ActualizaCambiosGaps(ActiveData& ad) {
  ReclassifyIncluded(ad);
  ComputeSiteDiversity(ad);
  RebuildCodingTables(ad);
}

}  // namespace ovelt

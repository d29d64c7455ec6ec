#pragma once
// How the data viewer writes one cell, under the two flags of its options dialog: polymorphic
// sites in lower case, and a dot where a sequence carries the same nucleotide as the first.

#include <cstdint>

namespace ovelt {

struct ViewerDisplayOptions {
  bool LowerCasePolymorphic = true;
  bool DotForFirstSequence = true;
};

// The character shown for `cell` of sequence `seq` (1-based) at a site of class `site_class`,
// where the first sequence carries `first_cell`. Gaps and missing data show as they are; a dot
// stands only for a nucleotide equal to that of the first sequence, never in the first
// sequence itself.
[[nodiscard]] char ViewerCellText(char cell, char first_cell, int32_t seq, int16_t site_class,
                                  const ViewerDisplayOptions& options);

}  // namespace ovelt

#pragma once
// OK of the Include / Exclude Sequences dialog: which file sequences form the included layer,
// and the `GapsInSets` choice shown beside them.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

inline const std::string kNoSequenceIncluded =
    "The active data file must contain at least one sequence.";

// `ticks` holds one flag per file sequence, 1..`TotalSeqs` (index 0 unused; missing entries
// count as unticked). With none ticked the message is returned and nothing changes. Otherwise
// `SeqIncluded`, `NumSeqs` and `GapsInSets` take the new values and, when any of them changed,
// `IncMatrix` and `IncNames` are rebuilt (sharing the file's cells again when all are ticked)
// and the site classes, diversities and coding tables follow.
[[nodiscard]] std::optional<std::string> IncludeSequences(ActiveData& ad,
                                                          const std::vector<bool>& ticks,
                                                          int16_t gaps_in_sets);

}  // namespace ovelt

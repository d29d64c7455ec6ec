#pragma once
// Sequence sets that can take part in an analysis: active, and holding at least one included
// sequence.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/forms_class.h"

namespace ovelt {

inline const std::string kTooFewActivePopulations =
    "There are less than 2 active populations with included sequences. Can't compute the Gene "
    "Flow between/among populations.";

// Active sets of the store with at least one included sequence.
[[nodiscard]] int32_t NumeroNetoPoblacionesIncluidas(const ActiveData& ad);

// The same count over the working copy of a dialog, with the included flags of the file.
[[nodiscard]] int32_t NumeroNetoPoblacionesIncluidas(const forms_class& work,
                                                     const std::vector<bool>& seq_included);

// OK of the populations dialog: while the gene flow command runs, fewer than two active sets
// with included sequences in `work` keep the dialog open with this message; nullopt otherwise.
[[nodiscard]] std::optional<std::string> CheckActivePopulations(const ActiveData& ad,
                                                                const forms_class& work);

}  // namespace ovelt

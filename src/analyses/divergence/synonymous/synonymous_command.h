#pragma once
// "Synonymous and NonSyn. Substitutions" as a command: its options (region, sequence set,
// silent sites, per-pair table, seed of the tie-breaks), the computation over the selection, the
// report with the per-pair table (streamed to a file when too long for the grid), and the JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> SynonymousBinding();

}  // namespace ovelt

#pragma once
// OK of the genetic code dialog.

#include <cstdint>
#include <string>

#include "core/active_data.h"

namespace ovelt {

// The preferred/unpreferred codon table a genetic code starts with: the first built-in table
// of that code. Only the nuclear universal code has built-in tables.
[[nodiscard]] std::string DefaultPrefTableName(int16_t genetic_code);

// Stores code `index` (1..10; anything else is refused and changes nothing). When the index
// changed, the preferred/unpreferred table goes back to the default of the new code and the
// coding tables are rebuilt. Returns true when the index changed.
bool ChangeGeneticCode(ActiveData& ad, int16_t index);

}  // namespace ovelt

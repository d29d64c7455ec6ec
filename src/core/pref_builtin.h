#pragma once
// The built-in preferred/unpreferred codon tables, in collection order: "None" first, then
// eight organisms under the nuclear universal code. Their statuses are those of the codon usage
// studies the workbench was published with: a codon not named by an organism's string keeps the
// status its genetic code gives (stop 3, single codon 2, unknown 1).

#include <vector>

#include "core/pref_table.h"

namespace ovelt {

// Built once, on first use.
[[nodiscard]] const std::vector<CodPrefUnPref>& BuiltInPrefTables();

}  // namespace ovelt

#pragma once
// Which preferred/unpreferred codon tables go with a NEXUS file, and its CODONUSAGE block.
// The lines of each table are those of the table file (ovp_writer.h), so that the block reads
// the same in both.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/pref_table.h"

namespace ovelt {

inline constexpr const char* kPrefTableCodeDiffers =
    "The current Genetic Code does not agree with that assigned in the Pref-UnPref Table!";

// The whole block for these tables; nothing when the list is empty.
[[nodiscard]] std::vector<std::string> CodonUsageBlockOf(
    const std::vector<const CodPrefUnPref*>& tables);

// True when a table is assigned ("None" and "UNKNOWN" in any case mean none).
[[nodiscard]] bool PrefTableAssigned(const ActiveData& ad);

// The assigned table when its genetic code differs from the data's: the writer then shows
// `kPrefTableCodeDiffers` and leaves it out.
[[nodiscard]] bool AssignedTableCodeDiffers(const ActiveData& ad);

// The tables that go with a NEXUS file of the open data: the tables of its genetic code that
// are not built in, and the assigned one (unless `drop_assigned`), each only when it holds
// information.
[[nodiscard]] std::vector<const CodPrefUnPref*> TablesForNexusFile(const ActiveData& ad,
                                                                   bool drop_assigned);

}  // namespace ovelt

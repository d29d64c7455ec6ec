#pragma once
// The Data Information grid: what the open file holds and how it is annotated.

#include <string>
#include <utility>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

using InfoRow = std::pair<std::string, std::string>;  // label, value

inline constexpr const char* kDataInformationTitle = "Data Information";

// The rows in their fixed order.
[[nodiscard]] std::vector<InfoRow> DataInformationRows(const ActiveData& data);

// The name of a file kind ("MEGA", "NBRF/PIR", "NEXUS", "PHYLIP", "FASTA").
[[nodiscard]] std::string FileKindName(int16_t kind);

// What the file is annotated with, listed in full: the sequence sets with their members, the
// domains with their sites, and the protein coding regions (runs of coding sites with the codon
// position of their first site). "" when there is none of the three. CR LF lines.
[[nodiscard]] std::string DataAnnotationsText(const ActiveData& data);

// The grid as text for the output window: labels left, values from column 31, CR LF lines.
[[nodiscard]] std::string DataInformationText(const std::vector<InfoRow>& rows);

}  // namespace ovelt

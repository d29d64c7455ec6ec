#pragma once
// Domains (NEXUS CHARSETs) written as text, "NAME=1-300,450-600;OTHER=301-449": a name, "=",
// and site ranges or single sites separated by commas; several domains separated by ";".
// The sites of a domain are kept ascending, each once. And the view of the data through one
// domain: its sites, in order, as a data set of their own.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

// nullopt when the text is malformed, a name is empty or a site lies outside 1..num_sites.
[[nodiscard]] std::optional<std::vector<DomainSet>> ParseDomains(const std::string& text,
                                                                 int32_t num_sites);

// The data of `ad` restricted to `sites` (ascending, within 1..NumSites): the file and
// included layers, site classes, diversities and coding positions of those sites only, as a
// file of `sites.size()` sites; sequences, sets and settings as they are.
[[nodiscard]] ActiveData DomainData(const ActiveData& ad, const std::vector<int32_t>& sites);

}  // namespace ovelt

#pragma once
// The first lines of every analysis report: data file, sequences used, region, net sites.

#include <cstdint>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

// Numbers in the order given, runs of consecutive numbers written as first "-" last, items
// separated by one blank: {1, 2, 3, 5, 7, 8, 9, 10, 11, 12} gives "1-3 5 7-12".
[[nodiscard]] std::string CompactNumberList(const std::vector<int32_t>& numbers);

// The report head for the first selection, CR LF line ends, beginning with an empty line.
// `net_sites` is what the analysis counted (normally `NetSites` over the region).
[[nodiscard]] std::string ReportHead(const ActiveData& ad, int32_t net_sites);

}  // namespace ovelt

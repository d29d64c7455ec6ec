#pragma once
// The first lines of every analysis report: data file, sequences used, region, net sites.

#include <cstdint>
#include <string>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// Numbers in the order given, runs of consecutive numbers written as first "-" last, items
// separated by one blank: {1, 2, 3, 5, 7, 8, 9, 10, 11, 12} gives "1-3 5 7-12".
[[nodiscard]] std::string CompactNumberList(const std::vector<int32_t>& numbers);

// The region line of the head, " Selected region: 1-900   Number of sites: 900", and the line
// of the net sites; without line ends.
[[nodiscard]] std::string RegionLine(const RegionSelection& region);
[[nodiscard]] std::string NetSitesLine(int32_t net_sites);

// The report head for the first selection, CR LF line ends, beginning with an empty line.
// `net_sites` is what the analysis counted (normally `NetSites` over the region);
// `with_fixed_gaps` adds the count of the sites left once the fixed gaps are taken out (the
// polymorphic sites report).
[[nodiscard]] std::string ReportHead(const Selection& sel, int32_t net_sites,
                                     bool with_fixed_gaps = false);

}  // namespace ovelt

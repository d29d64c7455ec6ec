#pragma once
// The report text of the Recombination command after its head: the block of Hudson's estimate
// of R, then the block of Rm.

#include <cstddef>
#include <string>
#include <vector>

#include "analyses/recombination/recombination_compute.h"

namespace ovelt {

// At most this many pairs or intervals are listed.
inline constexpr std::size_t kRmDisplayLimit = 500;

// The lines of site pairs: "(" lo "," hi ")" and two blanks, five to a line led by ten blanks,
// the first `kRmDisplayLimit` only.
[[nodiscard]] std::string SitePairLines(const std::vector<SiteInterval>& pairs);

// The site numbers of the sites left out of Rm, as "Site position: " for one or "Site
// positions: " for several, separated by a blank and broken after every 15th.
[[nodiscard]] std::string OtherVariantLines(const std::vector<int32_t>& sites);

[[nodiscard]] std::string HudsonReportText(const RecombinationResult& r);
[[nodiscard]] std::string RmReportText(const RmEstimate& rm);
[[nodiscard]] std::string RecombinationReportBody(const RecombinationResult& r);

}  // namespace ovelt

#pragma once
// The text of Fu and Li's tests with an outgroup: its own head (data file, region, net sites,
// the intraspecific data and the outgroup), the ambiguous positions, the counts, k and Pi, the
// estimates of theta, D and F with their significance in words, Fay and Wu's H and the line
// that says what was counted; the sliding window's settings and the legend of the marks when the
// window ran. CR LF line ends, every number through a `Format` mask.

#include <string>

#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "core/selection.h"

namespace ovelt {

// The head, from the selections of `sel` (set names, outgroup sequence names) and the result.
[[nodiscard]] std::string FuLiOutgroupHead(const Selection& sel, const FuLiOutgroupResult& result);

[[nodiscard]] std::string FuLiOutgroupReportBody(const FuLiOutgroupResult& result);

}  // namespace ovelt

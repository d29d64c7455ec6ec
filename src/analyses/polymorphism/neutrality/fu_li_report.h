#pragma once
// The text of Fu and Li's tests without an outgroup: after the report head, the counts, k and
// Pi, the estimates of theta, D* and F* with their significance in words, the line that says
// what was counted, then the haplotypes with Fu's Fs and Strobeck's S; the sliding window's
// settings and the legend of the marks when the window ran. With no polymorphic site, one line
// that says so. CR LF line ends, every number through a `Format` mask.

#include <string>

#include "analyses/polymorphism/neutrality/fu_li_compute.h"

namespace ovelt {

[[nodiscard]] std::string FuLiReportBody(const FuLiTestResult& result);

// The lines of Fs and Strobeck's S for h haplotypes.
[[nodiscard]] std::string FsLines(const FsResult& fs, int32_t haplotypes);

}  // namespace ovelt

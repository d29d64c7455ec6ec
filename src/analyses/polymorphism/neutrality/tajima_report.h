#pragma once
// The text of Tajima's test: after the report head, S and Eta, k and Pi, Watterson's theta per
// sequence and per site, D with its significance in words and the line that says what was
// counted; the sliding window's settings and the legend of the marks when the window ran.
// CR LF line ends, every number through a `Format` mask.

#include <string>

#include "analyses/polymorphism/neutrality/tajima_compute.h"

namespace ovelt {

[[nodiscard]] std::string TajimaReportBody(const TajimaTestResult& result);

// " Calculation using the total number of mutations" or "... of segregating sites".
[[nodiscard]] std::string CalculationLine(bool use_mutations);

}  // namespace ovelt

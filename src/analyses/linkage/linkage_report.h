#pragma once
// The report text of a linkage run, after the common head: the counts, the tests, the
// summaries and the regression block.

#include <string>

#include "analyses/linkage/distance_regression.h"
#include "analyses/linkage/linkage_compute.h"

namespace ovelt {

// "  |D| values:  Y = 0.1234 - 0.0056X   (66 points)"; the label is the line's own.
[[nodiscard]] std::string RegressionLine(const std::string& label, const DistanceRegression& line);

[[nodiscard]] std::string LinkageReportBody(const LinkageResult& result);

}  // namespace ovelt

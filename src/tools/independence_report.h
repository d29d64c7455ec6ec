#pragma once
// The report of "Tests of Independence": the typed table, then Fisher's exact test, the
// chi-square test and the G test, each value with its P value and significance mark.

#include <string>

#include "tools/independence_tests.h"
#include "tools/two_by_two_table.h"

namespace ovelt {

// The report's lines, each ended by CR LF.
[[nodiscard]] std::string IndependenceReportText(const TwoByTwoTable& table,
                                                 const IndependenceResult& result);

}  // namespace ovelt

#pragma once
// The report of "DNA Polymorphism Analysis": CR LF lines behind the report head.

#include <string>

#include "analyses/polymorphism/overview/overview_stats.h"

namespace ovelt {

[[nodiscard]] std::string OverviewReportText(const OverviewStats& o);

}  // namespace ovelt

#pragma once
// The results of the overview commands as JSON for scripts (the --json output).

#include <vector>

#include "analyses/polymorphism/overview/multidomain_table.h"
#include "analyses/polymorphism/overview/overview_stats.h"
#include "output/json_text.h"

namespace ovelt {

// One object; `key` names it inside an open object (empty at the top or in an array).
void WriteJson(JsonText& json, const OverviewStats& o, std::string_view key = {});

// One object with the array "Rows".
void WriteJson(JsonText& json, const std::vector<MultiDomainRow>& rows);

}  // namespace ovelt

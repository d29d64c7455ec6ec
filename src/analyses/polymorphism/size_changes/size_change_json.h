#pragma once
// The result of "Population Size Changes" as JSON for scripts (the --json output).

#include "analyses/polymorphism/size_changes/size_change_result.h"
#include "output/json_text.h"

namespace ovelt {

// Writes one object; `json` may be inside an open container.
void WriteJson(JsonText& json, const SizeChangeResult& r);

}  // namespace ovelt

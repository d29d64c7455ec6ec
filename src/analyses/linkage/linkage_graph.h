#pragma once
// The LD chart's table: one row per pair, the distance in column 1, then D, |D|, D', |D'|, R,
// R^2 and the pair's significance (1 or 0), in single precision.

#include "analyses/linkage/linkage_compute.h"
#include "output/graph_data.h"

namespace ovelt {

[[nodiscard]] GraphData LinkageGraph(const LinkageResult& result);

}  // namespace ovelt

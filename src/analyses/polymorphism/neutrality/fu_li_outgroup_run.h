#pragma once
// A run of Fu and Li's tests with an outgroup (and Fay and Wu's H) once `Form11b` was confirmed:
// the checks of the options, the two selections, the computation, the report, the table of the
// windows and the result shown. A refusal leaves `ReopenDialog` set; the two refusals of the
// selections (no sequence in a set, fewer than three in the intraspecific data) also `RunFailed`.

#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "output/graph_data.h"
#include "core/active_data.h"
#include "output/json_text.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

struct FuLiOutgroupRun {
  FuLiOutgroupResult Result;
  GraphData Graph;
};

bool RunFuLiOutgroupTest(ActiveData& ad, OutputChannel& channel, Platform& platform,
                         const FuLiOutgroupOptions& options, FuLiOutgroupRun* run = nullptr);

void WriteJson(JsonText& json, const FuLiOutgroupResult& result);

}  // namespace ovelt

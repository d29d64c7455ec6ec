#pragma once
// A run of Fu and Li's tests (with Fu's Fs and Strobeck's S) once the dialog was confirmed: the
// checks of the options, the selection, the computation, the report, the table of the windows
// and the result shown. A refusal leaves `ReopenDialog` set, a failure `RunFailed`; a fault of Fs
// alone is shown and the rest of the result stands.

#include "analyses/polymorphism/neutrality/fu_li_compute.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "output/graph_data.h"
#include "core/active_data.h"
#include "output/json_text.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

struct FuLiRun {
  FuLiTestResult Result;
  GraphData Graph;
};

bool RunFuLiTest(ActiveData& ad, OutputChannel& channel, Platform& platform,
                 const NeutralityOptions& options, FuLiRun* run = nullptr);

void WriteJson(JsonText& json, const FuLiTestResult& result);

}  // namespace ovelt

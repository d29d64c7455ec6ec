#pragma once
// A run of Tajima's test once its dialog was confirmed: the checks of the options, the
// selection, the computation, the report, the table of the windows and the result shown.
// A refusal leaves `ReopenDialog` set, a failure `RunFailed`.

#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/neutrality/tajima_compute.h"
#include "output/graph_data.h"
#include "core/active_data.h"
#include "output/json_text.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

struct TajimaRun {
  TajimaTestResult Result;
  GraphData Graph;  // the windows' table when the sliding window ran
};

// True when the result stands in `channel`; `run` (optional) receives the result.
bool RunTajimaTest(ActiveData& ad, OutputChannel& channel, Platform& platform,
                   const NeutralityOptions& options, TajimaRun* run = nullptr);

// The result as one JSON object, the significance mark with each statistic.
void WriteJson(JsonText& json, const TajimaTestResult& result);

}  // namespace ovelt

#pragma once
// A run of the DNA Polymorphism command once its dialog was confirmed: the checks of the
// options, the selection, the computation with its status words and gauge, the report, the
// grid of the windows and the result shown. A refusal or failure shows its message and leaves
// the channel's flags as the dialog reads them (`ReopenDialog` for a refusal, `RunFailed` for a
// failure).

#include "analyses/polymorphism/diversity/dna_polymorphism.h"
#include "output/graph_data.h"
#include "core/active_data.h"
#include "output/json_text.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

struct DnaPolRun {
  DnaPolResult Result;
  GraphData Graph;  // the windows' table when the sliding window ran, else GraphKind 0
};

// True when the result stands in `channel`; `run` (optional) receives the result.
bool RunDnaPolymorphism(ActiveData& ad, OutputChannel& channel, Platform& platform,
                        const DnaPolOptions& options, DnaPolRun* run = nullptr);

// The result as one JSON object (for scripts: every number as computed).
void WriteJson(JsonText& json, const DnaPolResult& result);

}  // namespace ovelt

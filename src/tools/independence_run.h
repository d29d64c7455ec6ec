#pragma once
// A run of "Tests of Independence" once its dialog was confirmed: the checks of the typed
// table, the tests, and the report left in the output channel as a text result (so that it is
// saved, printed and copied to the session file as any other).
//
// A refusal computes nothing, leaves the previous output as it stands and sets `ReopenDialog`;
// the caller shows the returned message in its box.

#include <optional>

#include "output/json_text.h"
#include "output/output_channel.h"
#include "tools/independence_options.h"
#include "tools/independence_tests.h"
#include "tools/tool_message.h"
#include "tools/two_by_two_table.h"

namespace ovelt {

inline constexpr const char* kIndependenceStatus = "Computing Independence Tests...";

struct IndependenceRun {
  TwoByTwoTable Table;
  IndependenceResult Result;
};

// nullopt when the result stands in `channel`; `run` (optional) receives the table and result.
[[nodiscard]] std::optional<ToolMessage> RunIndependence(OutputChannel& channel,
                                                         const IndependenceOptions& options,
                                                         IndependenceRun* run = nullptr);

// The table and the tests as one JSON object, each P value with its mark.
void WriteJson(JsonText& json, const IndependenceRun& run);

}  // namespace ovelt

#pragma once
// A run of one tab of "Discrete Distributions" once its button was pressed: the checks of the
// boxes, the probabilities, and the report left in the output channel as a text result (saved,
// printed and copied to the session file as any other).
//
// A refusal computes nothing, leaves the previous output as it stands and sets `ReopenDialog`;
// the caller shows the returned message (F20Filtros) in its box.

#include <optional>

#include "output/json_text.h"
#include "output/output_channel.h"
#include "tools/discrete_probabilities.h"
#include "tools/distribution_check.h"
#include "tools/distribution_options.h"
#include "tools/ewens_tab.h"
#include "tools/tool_message.h"

namespace ovelt {

inline constexpr const char* kDistributionsStatus = "Computing...";

struct BinomialRun {
  BinomialInput Input;
  DiscreteProbabilities Result;
};
struct HypergeometricRun {
  HypergeometricInput Input;
  DiscreteProbabilities Result;
};
struct PoissonRun {
  PoissonInput Input;
  DiscreteProbabilities Result;
};
struct EwensRun {
  EwensInput Input;
  EwensResult Result;
};

// nullopt when the result stands in `channel`; `run` (optional) receives input and result.
[[nodiscard]] std::optional<ToolMessage> RunBinomial(OutputChannel& channel,
                                                     const BinomialOptions& boxes,
                                                     BinomialRun* run = nullptr);
[[nodiscard]] std::optional<ToolMessage> RunHypergeometric(OutputChannel& channel,
                                                           const HypergeometricOptions& boxes,
                                                           HypergeometricRun* run = nullptr);
[[nodiscard]] std::optional<ToolMessage> RunPoisson(OutputChannel& channel,
                                                    const PoissonOptions& boxes,
                                                    PoissonRun* run = nullptr);
[[nodiscard]] std::optional<ToolMessage> RunEwens(OutputChannel& channel, const EwensOptions& boxes,
                                                  const EwensTailSource& tail,
                                                  EwensRun* run = nullptr);

// Input and result as one JSON object.
void WriteJson(JsonText& json, const BinomialRun& run);
void WriteJson(JsonText& json, const HypergeometricRun& run);
void WriteJson(JsonText& json, const PoissonRun& run);
void WriteJson(JsonText& json, const EwensRun& run);

}  // namespace ovelt

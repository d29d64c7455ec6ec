#pragma once
// What the runner needs of one command, whatever the types of its options and result: fresh
// options for its dialog or flags, and the run itself once they were confirmed.

#include <any>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "command/command_report.h"
#include "command/progress.h"
#include "core/active_data.h"
#include "core/command_options.h"
#include "output/used_sequences.h"

namespace ovelt {

class OutputChannel;

// What a run is given.
struct RunContext {
  // The open data; null for a command that needs no data file.
  const ActiveData* Data = nullptr;
  // Sequences the selection must hold (the command's own minimum).
  int32_t MinimumSequences = 0;
  // Called once the options passed, before the selection: the output is cleaned and the status
  // line shows `words`.
  std::function<void(const std::string& words)> Begin;
  ::ovelt::Progress Progress;
  // Whether the result is also wanted as JSON.
  bool WantJson = false;
};

// What a run that stands leaves.
struct CommandProduct {
  CommandReport Report;
  // The region of the run, kept in the active data once the result stands.
  RegionSelection Region;
  // The sequences of the run, named by the print head of its chart.
  UsedSequences Used;
  std::string Json;
  // The result itself, as a `std::shared_ptr<const Result>`, for a face that also shows its
  // numbers in a window of its own (the coalescent's limits beside its fields).
  std::any Result;
};

class CommandBinding {
 public:
  virtual ~CommandBinding() = default;
  [[nodiscard]] virtual std::unique_ptr<CommandOptions> NewOptions() const = 0;
  // Whether the command works on the open data file; one that does not runs with null data.
  [[nodiscard]] virtual bool NeedsData() const { return true; }
  // What the dialog says as soon as the user picks these options (a choice that makes one of
  // the results meaningless). A face without the dialog shows them before the run.
  [[nodiscard]] virtual std::vector<std::string> ChoiceNotices(CommandOptions& /*options*/) const {
    return {};
  }
  // The checks of the options, the selection, the computation and the report. Throws
  // CommandFailure with the user's words when the run cannot stand.
  [[nodiscard]] virtual CommandProduct Run(const RunContext& context,
                                           CommandOptions& options) const = 0;
};

}  // namespace ovelt

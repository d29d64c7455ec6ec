#pragma once
// The one runner of the commands of the registry. Once a command's options were confirmed (by
// its dialog or by flags) it runs the binding, hands the report to the output channel and keeps
// the region of the run. Every failure takes the same road: the message is shown, the flags of
// the channel say what became of the run, and the active data is as it was before.

#include <any>
#include <string>

#include "command/command_entry.h"
#include "core/command_options.h"

namespace ovelt {

class Workbench;
class OutputChannel;
class Platform;
struct ActiveData;

struct RunOutcome {
  bool Stands = false;  // the result is in the output channel
  std::string Json;     // the result as JSON, when it was asked for
  std::any Result;      // the result, when the binding hands it to the face (CommandProduct)
};

// `want_json` asks for the JSON of the result as well.
RunOutcome RunCommand(Workbench& wb, const CommandEntry& entry, CommandOptions& options,
                      bool want_json = false);

// The same on the parts of a workbench: its data (null data for a command that needs no data
// file, or when none is open), its output channel and the platform.
RunOutcome RunCommand(ActiveData* data, OutputChannel& channel, Platform& ui,
                      const CommandEntry& entry, CommandOptions& options, bool want_json = false);

}  // namespace ovelt

#pragma once
// What the command line gives for the dialogs that a refusal offers on the desktop ("Do you want
// to define them?"): the flags that define the sequence sets or the coding region, and those
// that choose the sets of a run.

#include <string>
#include <vector>

#include "core/command_options.h"

namespace ovelt {

// The keys of the sequence-set fields of a command's options ("set", "outgroup"), in order.
[[nodiscard]] std::vector<std::string> SetFlagKeys(CommandOptions& options);

// The line that names the flags giving what the dialog `form_name` defines; `set_keys` are the
// set flags of the command that was refused. Empty when no flag defines it.
[[nodiscard]] std::string DefinitionFlagsLine(const std::string& form_name,
                                              const std::vector<std::string>& set_keys);

}  // namespace ovelt

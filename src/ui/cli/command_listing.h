#pragma once
// Text views of the command table for `ovelt commands` and `ovelt help COMMAND`.

#include <string>

namespace ovelt {

struct CommandFacts;

// One line per command: number, title, menu text, checks, dialog, command-line name.
[[nodiscard]] std::string CommandListing();
// The description of one command.
[[nodiscard]] std::string CommandHelp(const CommandFacts& row);

}  // namespace ovelt

#pragma once
// The registry: one entry per command of the command table, in the table's order. The menus of
// the desktop, the subcommands of the command line, `ovelt commands` and `ovelt help`, the
// titles of reports and status lines and the option dialogs are all made by walking it.

#include <string>
#include <vector>

#include "command/command_entry.h"

namespace ovelt {

[[nodiscard]] const std::vector<CommandEntry>& Registry();

// The entry of a command number (with or without the 1000 of two-set commands); nullptr if none.
[[nodiscard]] const CommandEntry* FindEntry(int number);
[[nodiscard]] const CommandEntry* FindEntry(CommandId id);
// The entry whose command-line name, number or title matches `key`; nullptr if none.
[[nodiscard]] const CommandEntry* FindEntry(const std::string& key);

// The title of a command number ("" when the number has none).
[[nodiscard]] std::string CommandTitle(int number);

}  // namespace ovelt

#pragma once
// The subcommands that need no data file: the command table, help on one command, the genetic
// codes and the recent files.

namespace ovelt {

class CliRegistry;

void AddTableCommands(CliRegistry& registry);

}  // namespace ovelt

#pragma once
// The subcommands about the data file itself: info, sites, check.

namespace ovelt {

class CliRegistry;

void AddDataCommands(CliRegistry& registry);

}  // namespace ovelt

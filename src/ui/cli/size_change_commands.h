#pragma once
// The subcommands of population size changes and of the overviews: population-size-changes
// (15), intraspecific (24) and multidomain (33).

namespace ovelt {

class CliRegistry;

void AddSizeChangeCommands(CliRegistry& registry);

}  // namespace ovelt

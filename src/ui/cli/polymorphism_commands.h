#pragma once
// The subcommands of the polymorphism analyses.

namespace ovelt {

class CliRegistry;

void AddPolymorphismCommands(CliRegistry& registry);

}  // namespace ovelt

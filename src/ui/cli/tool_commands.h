#pragma once
// The calculators that need no data file: "Tests of Independence" (a 2 x 2 table), "Discrete
// Distributions" (one subcommand per tab) and the "Evolutionary Calculator" (a key sequence).

namespace ovelt {

class CliRegistry;

void AddToolCommands(CliRegistry& registry);

}  // namespace ovelt

#pragma once
// `ovelt coalescent`: the coalescent simulations of "The Coalescent", which need no data file.

namespace ovelt {

class CliRegistry;

void AddCoalescentCommand(CliRegistry& registry);

}  // namespace ovelt

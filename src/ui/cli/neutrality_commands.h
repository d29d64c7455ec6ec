#pragma once
// The neutrality tests on the command line: `ovelt tajima`, `ovelt fu-li` and
// `ovelt fu-li-outgroup`.

#include "ui/cli/cli_registry.h"

namespace ovelt {

void AddNeutralityCommands(CliRegistry& registry);

}  // namespace ovelt

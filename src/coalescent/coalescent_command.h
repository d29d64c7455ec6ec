#pragma once
// The binding of "Coalescent Simulations": the typed fields, the replicates and the report.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> CoalescentBinding();

}  // namespace ovelt

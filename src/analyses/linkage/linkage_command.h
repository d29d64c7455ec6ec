#pragma once
// The binding of "Linkage Disequilibrium" (command 4).

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> LinkageBinding();

}  // namespace ovelt

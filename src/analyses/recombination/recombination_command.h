#pragma once
// The Recombination command: its options (the region), Hudson's estimate of R and Rm over the
// included sequences, the report, and the result's fields as JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> RecombinationBinding();

}  // namespace ovelt

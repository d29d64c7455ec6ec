#pragma once
// Tajima's test as a command: its options (region, sequence set, sliding window), the test over
// the selection, the report with its table of windows, and the result's fields as JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> TajimaBinding();

}  // namespace ovelt

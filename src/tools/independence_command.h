#pragma once
// The binding of "Tests of Independence": the checks of the typed table, the tests and the
// report.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> IndependenceBinding();

}  // namespace ovelt

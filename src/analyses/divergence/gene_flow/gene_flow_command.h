#pragma once
// "Gene Flow and Genetic Differentiation" as a command: the active sequence sets as
// populations, the report, the table of every pair of populations, the P values of their
// permutation tests, and the JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> GeneFlowBinding();

}  // namespace ovelt

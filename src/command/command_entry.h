#pragma once
// One command of the registry: what the shell knows of it before it runs, and its binding (the
// options, the computation, the report and the JSON). A command whose analysis is not built
// yet has its facts and no binding.

#include <memory>

#include "command/command_binding.h"
#include "command/command_facts.h"

namespace ovelt {

struct CommandEntry {
  CommandFacts Facts;
  std::shared_ptr<const CommandBinding> Binding;

  [[nodiscard]] bool Built() const { return Binding != nullptr; }
};

}  // namespace ovelt

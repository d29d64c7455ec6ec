#include "ui/cli/cli_registry.h"

#include <CLI/CLI.hpp>

namespace ovelt {

CLI::App& CliRegistry::Add(const std::string& name, const std::string& description,
                           std::function<int(const CliStreams&)> run) {
  CLI::App* sub = app_.add_subcommand(name, description);
  entries_.push_back({sub, std::move(run)});
  return *sub;
}

int CliRegistry::RunChosen(const CliStreams& streams) const {
  for (const Entry& entry : entries_)
    if (entry.app->parsed()) return entry.run(streams);
  return 2;
}

}  // namespace ovelt

#include "ui/cli/table_commands.h"

#include <CLI/CLI.hpp>

#include <ostream>

#include "core/genetic_code.h"
#include "shell/command_registry.h"
#include "shell/workbench.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/command_listing.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"

namespace ovelt {

void AddTableCommands(CliRegistry& registry) {
  registry.Add("commands", "List the command table", [](const CliStreams& s) {
    s.out << CommandListing();
    return kCliDone;
  });

  auto& key = registry.Keep<std::string>();
  registry
      .Add("help", "Describe one command of the table",
           [&key](const CliStreams& s) {
             const CommandEntry* row = FindEntry(key);
             if (row == nullptr) {
               s.err << "Unknown command \"" << key << "\"; `ovelt commands` lists them.\n";
               return kCliUsage;
             }
             s.out << CommandHelp(row->Facts);
             return kCliDone;
           })
      .add_option("COMMAND", key, "Command number, name or title")
      ->required();

  registry.Add("genetic-codes", "List the ten genetic codes", [](const CliStreams& s) {
    for (int16_t i = 1; i <= kGeneticCodeCount; ++i)
      s.out << i << "  " << GeneticCodeText(i) << "  (NEXUS name " << GeneticCodeNexusName(i)
            << ")\n";
    return kCliDone;
  });

  registry.Add("recent", "List the recently opened data files", [](const CliStreams& s) {
    ConsolePlatform platform(s.err);
    Workbench wb(platform);
    for (int n = 1; n <= 4; ++n)
      if (!wb.Recent().Entry(n).empty()) s.out << n << " " << wb.Recent().Entry(n) << "\n";
    return kCliDone;
  });
}

}  // namespace ovelt

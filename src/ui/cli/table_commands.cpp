#include "ui/cli/table_commands.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "core/genetic_code.h"
#include "shell/command_registry.h"
#include "shell/manual.h"
#include "shell/workbench.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/command_listing.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"

namespace ovelt {

namespace {

// The facts of the command table, then its page of the manual as written (Markdown reads as
// text). A page without a command (the calculator, a topic) is printed alone.
int PrintHelp(const std::string& key, const CliStreams& s) {
  const std::vector<std::string> dirs = {ExecutableDirectory()};
  const std::optional<std::filesystem::path> root = FindManual(dirs);
  const CommandEntry* row = FindEntry(key);
  std::optional<ManualPage> page;
  if (root) page = Manual(*root).PageFor(key);
  if (row == nullptr && !page) {
    s.err << "Unknown command \"" << key << "\"; `ovelt commands` lists them.\n";
    return kCliUsage;
  }
  if (row != nullptr) s.out << CommandHelp(row->Facts);
  if (!root) {
    s.out << "\nThe manual was not found in: " << CandidatesText(ManualCandidates(dirs)) << "\n";
  } else if (!page) {
    s.out << "\nThe manual has no page for this command.\n";
  } else {
    const std::string text = Manual(*root).Text(page->Name).value_or("");
    s.out << (row != nullptr ? "\n" : "") << text;
    if (!text.empty() && text.back() != '\n') s.out << "\n";
  }
  return kCliDone;
}

}  // namespace

void AddTableCommands(CliRegistry& registry) {
  registry.Add("commands", "List the command table", [](const CliStreams& s) {
    s.out << CommandListing();
    return kCliDone;
  });

  auto& key = registry.Keep<std::string>();
  registry
      .Add("help", "Describe one command of the table",
           [&key](const CliStreams& s) { return PrintHelp(key, s); })
      .add_option("COMMAND", key, "Command number, name or title, or the name of a page")
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

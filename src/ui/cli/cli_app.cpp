#include "ui/cli/cli_app.h"

#include <CLI/CLI.hpp>

#include <ostream>

#include "shell/workbench.h"
#include "ui/cli/analysis_command.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/data_commands.h"
#include "ui/cli/export_commands.h"
#include "ui/cli/file_job.h"
#include "ui/cli/table_commands.h"
#include "ui/cli/tool_commands.h"

namespace ovelt {

int RunCli(int argc, char** argv, std::ostream& out, std::ostream& err) {
  CLI::App app{"Ovelt Workbench " + std::string(kVersionText) +
               ": population-genetic analysis of aligned DNA sequences."};
  app.require_subcommand(1);
  app.set_version_flag("--version", std::string("Ovelt Workbench ") + kVersionText);

  CliRegistry registry(app);
  AddTableCommands(registry);
  AddDataCommands(registry);
  AddExportCommands(registry);
  AddAnalysisCommands(registry);
  AddToolCommands(registry);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e, out, err) == 0 ? kCliDone : kCliUsage;
  }
  return registry.RunChosen({out, err});
}

}  // namespace ovelt

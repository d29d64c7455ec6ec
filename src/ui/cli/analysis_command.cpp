#include "ui/cli/analysis_command.h"

#include <CLI/CLI.hpp>

#include <memory>

#include "files/whole_file.h"
#include "shell/command_registry.h"
#include "shell/command_runner.h"
#include "shell/workbench.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"
#include "ui/cli/option_flags.h"
#include "ui/cli/output_options.h"
#include "ui/cli/result_exports.h"

namespace ovelt {

namespace {

struct CommandState {
  FileJob job;
  std::unique_ptr<CommandOptions> options;
  PendingOptionFlags pending;
  std::string json;
  ExportRequests exports;
};

// The run and its outputs, once the workbench holds the data (or needs none).
int RunAndFinish(CommandState& state, const CommandEntry& entry, Workbench& wb,
                 ConsolePlatform& platform, const CliStreams& s) {
  // The gate of the menus and the checks before the dialog concern the open file; a command
  // that needs none runs without them.
  const bool needs_data = entry.Binding->NeedsData();
  if (!CheckResultExports(state.exports, platform)) return kCliRefused;
  for (const auto& set : state.pending.sets) platform.set_flags.push_back(set.key);
  if (needs_data && !wb.BeginCommand(entry.Facts.Number())) return kCliRefused;
  // What the dialog would say as the options were picked, said before the run.
  for (const std::string& notice : entry.Binding->ChoiceNotices(*state.options))
    platform.MessageBox(notice, MsgIcon::kInformation, MsgButtons::kOk, "Ovelt", false);
  // A table too long for the grid is saved on the --grid file (the answer to its save dialog).
  const std::string& grid = state.job.output.grid;
  if (!grid.empty() && grid != "-") platform.save_name = grid;
  const RunOutcome outcome = RunCommand(wb, entry, *state.options, !state.json.empty());
  platform.save_name.reset();
  if (needs_data) wb.EndCommand();
  if (!outcome.Stands) return kCliRefused;
  if (!state.json.empty() && !WriteJsonFile(state.json, outcome.Json, platform, s.out))
    return kCliRefused;
  if (!WriteResultExports(state.exports, outcome, platform)) return kCliRefused;
  const bool text_out = state.json != "-";
  return FinishOutput(state.job.output, wb, "", s.out, text_out) ? kCliDone : kCliRefused;
}

void AddAnalysisCommand(CliRegistry& registry, const CommandEntry& entry) {
  const CommandFacts& facts = entry.Facts;
  auto& state = registry.Keep<CommandState>();
  state.options = entry.Binding->NewOptions();
  const bool needs_data = entry.Binding->NeedsData();
  CLI::App& app = registry.Add(
      facts.CliName,
      facts.Description + " (command " + std::to_string(facts.Number()) + ", \"" + facts.Title +
          "\")",
      [&state, &entry, needs_data](const CliStreams& s) {
        ConsolePlatform platform(s.err);
        Workbench wb(platform);
        if (needs_data) {
          if (!OpenJob(state.job, wb, platform, s.err)) return kCliRefused;
          if (!ResolveOptionFlags(state.pending, wb)) return kCliRefused;
        } else if (!BeginSession(state.job.output, wb, platform)) {
          return kCliRefused;
        }
        return RunAndFinish(state, entry, wb, platform, s);
      });
  if (needs_data) {
    AddFileJob(app, state.job);
  } else {
    AddOutputOptions(app, state.job.output);
  }
  OptionFlagBinder binder(app, state.pending);
  state.options->Visit(binder);
  app.add_option("--json", state.json,
                 "Write the result as JSON to this file (- for standard output)")
      ->group("Output");
  AddResultExports(app, entry, state.exports);
}

}  // namespace

void AddAnalysisCommands(CliRegistry& registry) {
  for (const CommandEntry& entry : Registry())
    if (entry.Built()) AddAnalysisCommand(registry, entry);
}

bool WriteJsonFile(const std::string& path, const std::string& json, Platform& platform,
                   std::ostream& out) {
  if (path == "-") {
    out << json << "\n";
    return true;
  }
  if (!WriteWholeFile(path, json + "\n")) {
    platform.MessageBox("Can't save the output on the file: " + path, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace ovelt

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

namespace ovelt {

namespace {

void AddAnalysisCommand(CliRegistry& registry, const CommandEntry& entry) {
  struct State {
    FileJob job;
    std::unique_ptr<CommandOptions> options;
    PendingOptionFlags pending;
    std::string json;
  };
  const CommandFacts& facts = entry.Facts;
  auto& state = registry.Keep<State>();
  state.options = entry.Binding->NewOptions();
  CLI::App& app = registry.Add(
      facts.CliName,
      facts.Description + " (command " + std::to_string(facts.Number()) + ", \"" + facts.Title +
          "\")",
      [&state, &entry](const CliStreams& s) {
        ConsolePlatform platform(s.err);
        Workbench wb(platform);
        if (!OpenJob(state.job, wb, platform, s.err)) return kCliRefused;
        if (!ResolveOptionFlags(state.pending, wb)) return kCliRefused;
        if (!wb.BeginCommand(entry.Facts.Number())) return kCliRefused;
        const RunOutcome outcome = RunCommand(wb, entry, *state.options, !state.json.empty());
        wb.EndCommand();
        if (!outcome.Stands) return kCliRefused;
        if (!state.json.empty() && !WriteJsonFile(state.json, outcome.Json, platform, s.out))
          return kCliRefused;
        const bool text_out = state.json != "-";
        return FinishOutput(state.job.output, wb, "", s.out, text_out) ? kCliDone : kCliRefused;
      });
  AddFileJob(app, state.job);
  OptionFlagBinder binder(app, state.pending);
  state.options->Visit(binder);
  app.add_option("--json", state.json,
                 "Write the result as JSON to this file (- for standard output)")
      ->group("Output");
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

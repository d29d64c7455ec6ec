#pragma once
// The subcommand of one analysis of the command table: FILE, the data settings, the output
// files, --json, and the flags of the analysis's own options (declared once in its options
// struct). A run opens the file, settles the flags, makes the checks of the command table,
// runs the analysis and sends its result out.

#include <CLI/CLI.hpp>

#include <fstream>
#include <functional>
#include <ostream>
#include <string>

#include "shell/command_table.h"
#include "shell/workbench.h"
#include "output/json_text.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"
#include "ui/cli/option_flags.h"

namespace ovelt {

// Runs the analysis on the open file with its options: checks them, makes the selection,
// computes, reports through the output channel and, when `json` is given, writes the result
// there. False when the analysis refused or failed (its message was shown).
template <class Options>
using AnalysisRun = std::function<bool(Workbench&, Options&, JsonText* json)>;

// "-" writes to `out`, in place of the report's text.
bool WriteJsonFile(const std::string& path, const JsonText& json, Platform& platform,
                   std::ostream& out);

template <class Options>
void AddAnalysisCommand(CliRegistry& registry, int16_t number, const std::string& description,
                        AnalysisRun<Options> run) {
  struct State {
    FileJob job;
    Options options;
    PendingOptionFlags pending;
    std::string json;
  };
  const CommandRow* row = FindCommand(number);
  auto& state = registry.Keep<State>();
  CLI::App& app = registry.Add(
      row->cli_name, description + " (command " + std::to_string(number) + ", \"" + row->title + "\")",
      [&state, number, run](const CliStreams& s) {
        ConsolePlatform platform(s.err);
        Workbench wb(platform);
        if (!OpenJob(state.job, wb, platform, s.err)) return kCliRefused;
        if (!ResolveOptionFlags(state.pending, wb)) return kCliRefused;
        if (!wb.BeginCommand(number)) return kCliRefused;
        JsonText json;
        const bool ok = run(wb, state.options, state.json.empty() ? nullptr : &json);
        wb.EndCommand();
        if (!ok) return kCliRefused;
        if (!state.json.empty() && !WriteJsonFile(state.json, json, platform, s.out))
          return kCliRefused;
        const bool text_out = state.json != "-";
        return FinishOutput(state.job.output, wb, "", s.out, text_out) ? kCliDone : kCliRefused;
      });
  AddFileJob(app, state.job);
  BindOptionFlags(app, state.options, state.pending);
  app.add_option("--json", state.json, "Write the result as JSON to this file (- for standard output)")
      ->group("Output");
}

}  // namespace ovelt

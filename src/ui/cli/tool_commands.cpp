#include "ui/cli/tool_commands.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "output/json_text.h"
#include "shell/command_registry.h"
#include "shell/workbench.h"
#include "tools/ewens_fs_source.h"
#include "tools/calculator.h"
#include "tools/calculator_keys.h"
#include "tools/distribution_run.h"
#include "ui/cli/analysis_command.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"
#include "ui/cli/option_flags.h"
#include "ui/cli/output_options.h"

namespace ovelt {
namespace {

// What a calculator's subcommand shares: the output files and --json.
struct ToolOutput {
  OutputOptions output;
  std::string json;
};

void AddToolOutput(CLI::App& app, ToolOutput& out) {
  AddOutputOptions(app, out.output);
  app.add_option("--json", out.json,
                 "Write the result as JSON to this file (- for standard output)")
      ->group("Output");
}

// Runs one calculator in a fresh workbench: `run` leaves its report in the output channel, or
// returns the refusal that the user is shown.
template <class Run>
int RunTool(const ToolOutput& out, const CliStreams& s,
            const std::function<std::optional<ToolMessage>(OutputChannel&, Run*)>& run,
            const std::function<void(JsonText&, const Run&)>& write_json) {
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!BeginSession(out.output, wb, platform)) return kCliRefused;
  Run result;
  if (const auto refusal = run(wb.Output(), &result)) {
    platform.MessageBox(refusal->Text, MsgIcon::kWarning, MsgButtons::kOk, refusal->Title, false);
    wb.Output().CloseSessionFile();
    return kCliRefused;
  }
  if (!out.json.empty()) {
    JsonText json;
    write_json(json, result);
    if (!WriteJsonFile(out.json, json.Text(), platform, s.out)) return kCliRefused;
  }
  return FinishOutput(out.output, wb, "", s.out, out.json != "-") ? kCliDone : kCliRefused;
}

// One tab of the distributions as a subcommand of its own, with the tab's boxes as flags.
template <class Options, class Run>
void AddDistributionTab(
    CLI::App& parent, const std::string& name, const std::string& description, Options& boxes,
    ToolOutput& out,
    std::function<std::optional<ToolMessage>(OutputChannel&, const Options&, Run*)> run,
    std::function<int(const CliStreams&)>& chosen, CliRegistry& registry) {
  CLI::App* tab = parent.add_subcommand(name, description);
  auto& pending = registry.Keep<PendingOptionFlags>();
  BindOptionFlags(*tab, boxes, pending);
  AddToolOutput(*tab, out);
  tab->callback([&chosen, &boxes, &out, run]() {
    chosen = [&boxes, &out, run](const CliStreams& s) {
      return RunTool<Run>(
          out, s, [&boxes, run](OutputChannel& channel, Run* r) { return run(channel, boxes, r); },
          [](JsonText& json, const Run& r) { WriteJson(json, r); });
    };
  });
}

void AddDistributions(CliRegistry& registry) {
  struct State {
    DistributionBoxes boxes = F20DefectValues();
    ToolOutput out;
    std::function<int(const CliStreams&)> chosen;
  };
  auto& state = registry.Keep<State>();
  const CommandFacts& row = FindEntry(CommandId::kDistributions)->Facts;
  CLI::App& app = registry.Add(
      row.CliName,
      "Binomial, hypergeometric, Poisson and Ewens probabilities of typed values (command " +
          std::to_string(row.Number()) + ", \"" + row.Title + "\")",
      [&state](const CliStreams& s) { return state.chosen ? state.chosen(s) : kCliUsage; });
  app.alias("distribution");
  app.require_subcommand(1);

  AddDistributionTab<BinomialOptions, BinomialRun>(
      app, "binomial", "Binomial Distribution: P[X = k] in n trials of probability p",
      state.boxes.Binomial, state.out, RunBinomial, state.chosen, registry);
  AddDistributionTab<HypergeometricOptions, HypergeometricRun>(
      app, "hypergeometric",
      "Hypergeometric Distribution: P[X = k] in a sample of n drawn without replacement",
      state.boxes.Hypergeometric, state.out, RunHypergeometric, state.chosen, registry);
  AddDistributionTab<PoissonOptions, PoissonRun>(
      app, "poisson", "Poisson Distribution: P[X = k] for a mean lambda", state.boxes.Poisson,
      state.out, RunPoisson, state.chosen, registry);
  AddDistributionTab<EwensOptions, EwensRun>(
      app, "ewens",
      "Ewens Distribution: P[NHap = h], Strobeck's S, E[NHap] and Fu's Fs for a sample size "
      "and theta",
      state.boxes.Ewens, state.out,
      [](OutputChannel& channel, const EwensOptions& boxes, EwensRun* r) {
        return RunEwens(channel, boxes, FsEwensTail, r);
      },
      state.chosen, registry);
}

void AddCalculator(CliRegistry& registry) {
  struct State {
    std::vector<std::string> keys;
    bool comma = false;
    bool steps = false;
  };
  auto& state = registry.Keep<State>();
  CLI::App& app = registry.Add(
      "calc",
      "Evolutionary Calculator: press a sequence of keys and print the display, e.g. "
      "`ovelt calc 2 + 3 X 4 =` or `ovelt calc 0.1 JC`. Keys: digits, the point, + - X / = %, "
      "CE, C, a1, a2, 1/x, JC, ln, sqrt, x^2 (a negative number needs `--` before the keys)",
      [&state](const CliStreams& s) {
        std::string text;
        for (const std::string& key : state.keys) text += key + " ";
        const CalcKeyParse parse = ParseCalculatorKeys(text);
        if (!parse.BadWord.empty()) {
          s.err << "Unknown calculator key \"" << parse.BadWord << "\"\n";
          return kCliUsage;
        }
        ConsolePlatform platform(s.err);
        Calculator calculator(state.comma ? ',' : '.');
        bool failed = false;
        for (const CalcKey& key : parse.Keys) {
          if (const auto failure = PressKey(calculator, key)) {
            platform.MessageBox(failure->Text, MsgIcon::kWarning, MsgButtons::kOk, failure->Title,
                                false);
            failed = true;
          }
          if (state.steps) s.out << key.Text << "\t" << calculator.Readout() << "\n";
        }
        if (!state.steps) s.out << calculator.Readout() << "\n";
        return failed ? kCliRefused : kCliDone;
      });
  app.add_option("KEYS", state.keys, "The keys, in the order they are pressed")->required();
  app.add_flag("--decimal-comma", state.comma, "Show the point as a comma, as a locale may");
  app.add_flag("--steps", state.steps, "Print each key with the display after it");
}

}  // namespace

void AddToolCommands(CliRegistry& registry) {
  AddDistributions(registry);
  AddCalculator(registry);
}

}  // namespace ovelt

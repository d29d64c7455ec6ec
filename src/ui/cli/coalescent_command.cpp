#include "ui/cli/coalescent_command.h"

#include <CLI/CLI.hpp>
#include <ostream>
#include <string>

#include "coalescent/coalescent_run.h"
#include "coalescent/simulation_run.h"
#include "coalescent/statistic_code.h"
#include "output/json_text.h"
#include "shell/command_registry.h"
#include "shell/workbench.h"
#include "ui/cli/analysis_command.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"
#include "ui/cli/output_options.h"

namespace ovelt {
namespace {

// More threads than any machine gains from; the replicates are cut in blocks either way.
constexpr int kMaxThreads = 256;

struct CoalescentFlags {
  std::string theta;
  std::string segsites;
  std::string n = "10";
  std::string replicates = "1000";
  std::string statistic = "tajima-d";
  std::string observed = "0";
  std::string confidence = "95";
  std::string recombination = "none";
  std::string sites = "2000";
  std::string seed = "0";
  int threads = 1;
  OutputOptions output;
  std::string json;
};

std::string StatisticNames() {
  std::string names;
  for (const StatisticEntry& e : StatisticList()) {
    if (!names.empty()) names += ", ";
    names += e.CliName;
  }
  return names;
}

// The dialog's fields from the flags; false (with a usage message) for a name it does not know.
bool FormOf(const CoalescentFlags& flags, SimulationForm& form, std::ostream& err) {
  const StatisticEntry* e = FindStatisticByCliName(flags.statistic);
  if (e == nullptr) {
    err << "Unknown statistic \"" << flags.statistic << "\"; one of: " << StatisticNames() << "\n";
    return false;
  }
  form.Statistic = e->Code;
  if (!flags.segsites.empty()) {
    form.Given = GivenMode::kSegSites;
    form.GivenText = flags.segsites;
  } else if (!flags.theta.empty()) {
    form.GivenText = flags.theta;
  }
  form.SampleSizeText = flags.n;
  form.ReplicatesText = flags.replicates;
  form.ObservedText = flags.observed;
  form.PercentText = flags.confidence;
  form.SitesText = flags.sites;
  form.SeedText = flags.seed;
  if (flags.recombination == "none") {
    form.RecombinationChoice = 0;
  } else if (flags.recombination == "free") {
    form.RecombinationChoice = 1;
  } else {
    form.RecombinationChoice = 2;
    form.RText = flags.recombination;
  }
  return true;
}

int Run(const CoalescentFlags& flags, const CliStreams& s) {
  SimulationForm form;
  if (!FormOf(flags, form, s.err)) return kCliUsage;
  ConsolePlatform platform(s.err);
  if (const auto notice = ThetaFromSegSitesNotice(form.Given, form.Statistic))
    platform.MessageBox(notice->Text, MsgIcon::kInformation, MsgButtons::kOk, notice->Title, false);
  Workbench wb(platform);
  if (!BeginSession(flags.output, wb, platform)) return kCliRefused;
  CoalescentRun run;
  if (const auto refusal = RunCoalescent(wb.Output(), form, flags.threads, &run)) {
    platform.MessageBox(refusal->Text, MsgIcon::kWarning, MsgButtons::kOk, refusal->Title, false);
    wb.Output().CloseSessionFile();
    return kCliRefused;
  }
  if (const auto notice = NoEffectiveReplicatesNotice(run))
    platform.MessageBox(notice->Text, MsgIcon::kWarning, MsgButtons::kOk, notice->Title, false);
  if (!flags.json.empty()) {
    JsonText json;
    WriteJson(json, run);
    if (!WriteJsonFile(flags.json, json.Text(), platform, s.out)) return kCliRefused;
  }
  return FinishOutput(flags.output, wb, "", s.out, flags.json != "-") ? kCliDone : kCliRefused;
}

}  // namespace

void AddCoalescentCommand(CliRegistry& registry) {
  auto& flags = registry.Keep<CoalescentFlags>();
  const CommandFacts& row = FindEntry(CommandId::kCoalescent)->Facts;
  CLI::App& app = registry.Add(
      row.CliName,
      "Coalescent simulations: confidence limits and the probability of a value not above the "
      "observed one for a statistic under the neutral coalescent (command " +
          std::to_string(row.Number()) + ", \"" + row.Title + "\"). Needs no data file",
      [&flags](const CliStreams& s) { return Run(flags, s); });
  auto* theta = app.add_option("--theta", flags.theta,
                               "Theta per gene, above 0 and at most 1000 (default 12); \",\" or "
                               "\".\" as decimal separator");
  auto* segsites = app.add_option("--segsites", flags.segsites,
                                  "Fix the number of segregating sites instead, 1 to 3000");
  theta->excludes(segsites);
  app.add_option("--n", flags.n, "Sample size, 2 to 500")->capture_default_str();
  app.add_option("--replicates", flags.replicates, "Number of replicates, 1 to 50000")
      ->capture_default_str();
  app.add_option("--statistic", flags.statistic, "The statistic: " + StatisticNames())
      ->capture_default_str();
  app.add_option("--observed", flags.observed, "Observed value of the statistic")
      ->capture_default_str();
  app.add_option("--confidence", flags.confidence, "Confidence interval in percent, 1 to 100")
      ->capture_default_str();
  app.add_option("--recombination", flags.recombination,
                 "none, free (every site unlinked), or the recombination parameter R per gene "
                 "(0 to 500; 0 is none)")
      ->capture_default_str();
  app.add_option("--sites", flags.sites,
                 "Number of sites of the region, 2 to 32767, with a recombination parameter R")
      ->capture_default_str();
  app.add_option("--seed", flags.seed,
                 "Pseudorandom number seed; 0 (the default) runs as 111295. The same seed and "
                 "inputs repeat a run exactly")
      ->capture_default_str();
  app.add_option("--threads", flags.threads,
                 "Spread the replicates over N threads (N >= 2). The replicates are then cut "
                 "into fixed blocks of " +
                     std::to_string(kReplicatesPerBlock) +
                     ", each drawn from its own stream derived from the seed and the block "
                     "number: results repeat for a seed whatever N, but differ from the run "
                     "without --threads (or with 1), which draws every replicate from the one "
                     "stream of the seed")
      ->check(CLI::Range(1, kMaxThreads))
      ->capture_default_str();
  AddOutputOptions(app, flags.output);
  app.add_option("--json", flags.json,
                 "Write the inputs and results as JSON to this file (- for standard output)")
      ->group("Output");
}

}  // namespace ovelt

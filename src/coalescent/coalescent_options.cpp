#include "coalescent/coalescent_options.h"

#include "coalescent/simulation_run.h"
#include "coalescent/statistic_code.h"

namespace ovelt {

namespace {

std::string StatisticNames() {
  std::string names;
  for (const StatisticEntry& e : StatisticList()) {
    if (!names.empty()) names += ", ";
    names += e.CliName;
  }
  return names;
}

bool Blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

}  // namespace

std::string CoalescentOptions::StatisticHelp() {
  return "The statistic (default tajima-d): " + StatisticNames();
}

std::string CoalescentOptions::ThreadsHelp() {
  return "Spread the replicates over N threads, 1 to " + std::to_string(kMaxSimulationThreads) +
         ". With N >= 2 the replicates are cut into fixed blocks of " +
         std::to_string(kReplicatesPerBlock) +
         ", each drawn from its own stream derived from the seed and the block number: results "
         "repeat for a seed whatever N, but differ from the run with 1 (the default), which "
         "draws every replicate from the one stream of the seed";
}

std::variant<SimulationForm, SimulationMessage> FormOfOptions(const CoalescentOptions& options) {
  const StatisticEntry* e = FindStatisticByCliName(options.Statistic);
  if (e == nullptr)
    return SimulationMessage{"Unknown statistic \"" + options.Statistic +
                             "\"; the statistics are: " + StatisticNames()};
  SimulationForm form;
  form.Statistic = e->Code;
  if (options.Given == GivenMode::kSegSites || !Blank(options.SegSites)) {
    form.Given = GivenMode::kSegSites;
    form.GivenText = options.SegSites;
  } else {
    form.Given = GivenMode::kTheta;
    form.GivenText = options.Theta;
  }
  form.SampleSizeText = options.SampleSize;
  form.ReplicatesText = options.Replicates;
  form.ObservedText = options.Observed;
  form.PercentText = options.Confidence;
  form.SitesText = options.Sites;
  form.SeedText = options.Seed;
  if (options.Recombination == "none") {
    form.RecombinationChoice = 0;
  } else if (options.Recombination == "free") {
    form.RecombinationChoice = 1;
  } else {
    form.RecombinationChoice = 2;
    form.RText = options.Recombination;
  }
  return form;
}

CoalescentOptions OptionsOfForm(const SimulationForm& form, int32_t threads) {
  CoalescentOptions options;
  const StatisticEntry* e = FindStatistic(form.Statistic);
  options.Statistic = e != nullptr ? e->CliName : std::to_string(form.Statistic);
  options.Given = form.Given;
  if (form.Given == GivenMode::kSegSites) {
    options.SegSites = form.GivenText;
  } else {
    options.Theta = form.GivenText;
  }
  options.SampleSize = form.SampleSizeText;
  options.Replicates = form.ReplicatesText;
  options.Observed = form.ObservedText;
  options.Confidence = form.PercentText;
  options.Recombination = form.RecombinationChoice == 0   ? "none"
                          : form.RecombinationChoice == 1 ? "free"
                                                          : form.RText;
  options.Sites = form.SitesText;
  options.Seed = form.SeedText;
  options.Threads = threads;
  return options;
}

}  // namespace ovelt

#pragma once
// The fields of "The Coalescent" as typed: numbers stay text until "Run", because the dialog
// takes "," or "." as the decimal separator and words each bad field its own way, in a fixed
// order (ReadSimulationForm). The command line types the same texts as flags.

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "coalescent/simulation_input.h"
#include "core/command_options.h"

namespace ovelt {

// More threads than any machine gains from; the replicates are cut in blocks either way.
inline constexpr int32_t kMaxSimulationThreads = 256;

struct CoalescentOptions {
  std::string Theta = "12";
  // A number of segregating sites given instead of theta; typing one chooses that mode.
  std::string SegSites;
  // The dialog's choice between the two (the command line chooses by typing --segsites).
  GivenMode Given = GivenMode::kTheta;
  std::string SampleSize = "10";
  std::string Replicates = "1000";
  std::string Statistic = "tajima-d";  // the command-line name of the statistic
  std::string Observed = "0";
  std::string Confidence = "95";
  // "none", "free" (every site unlinked), or the recombination parameter R per gene.
  std::string Recombination = "none";
  std::string Sites = "2000";
  std::string Seed = "0";
  int32_t Threads = 1;

  template <class V>
  void Visit(V& v) {
    v.Text(Theta, {"theta", "Theta (per gene):",
                   "Theta per gene, above 0 and at most 1000 (default 12); \",\" or \".\" as "
                   "decimal separator"});
    v.Text(SegSites, {"segsites", "Segregating Sites:",
                      "Fix the number of segregating sites instead of theta, 1 to 3000"});
    v.Text(SampleSize, {"n", "Sample size:", "Sample size, 2 to 500 (default 10)"});
    v.Text(Replicates,
           {"replicates", "Number of replicates:", "Number of replicates, 1 to 50000 (default 1000)"});
    v.Text(Statistic, {"statistic", "Statistic:", StatisticHelp()});
    v.Text(Observed, {"observed", "Observed value:", "Observed value of the statistic (default 0)"});
    v.Text(Confidence, {"confidence", "% Confidence Interval:",
                        "Confidence interval in percent, 1 to 100 (default 95)"});
    v.Text(Recombination,
           {"recombination", "Recombination:",
            "none (the default), free (every site unlinked), or the recombination parameter R "
            "per gene (0 to 500; 0 is none)"});
    v.Text(Sites, {"sites", "No. of sites:",
                   "Number of sites of the region, 2 to 32767, with a recombination parameter R "
                   "(default 2000)"});
    v.Text(Seed, {"seed", "Seed:",
                  "Pseudorandom number seed; 0 (the default) runs as 111295. The same seed and "
                  "inputs repeat a run exactly"});
    v.Integer(Threads, {"threads", "Threads:", ThreadsHelp()}, 1, kMaxSimulationThreads);
  }

  [[nodiscard]] static std::string StatisticHelp();
  [[nodiscard]] static std::string ThreadsHelp();
};

// The dialog's form of the options; a refusal for a statistic name that is not in the list.
[[nodiscard]] std::variant<SimulationForm, SimulationMessage> FormOfOptions(
    const CoalescentOptions& options);

// The options that give `form` (the dialog hands its fields over this way).
[[nodiscard]] CoalescentOptions OptionsOfForm(const SimulationForm& form, int32_t threads = 1);

}  // namespace ovelt

#include "ui/cli/polymorphism_commands.h"

#include "analyses/polymorphism/diversity/dna_polymorphism_run.h"
#include "ui/cli/analysis_command.h"

namespace ovelt {

void AddPolymorphismCommands(CliRegistry& registry) {
  AddAnalysisCommand<DnaPolOptions>(
      registry, kDnaPolymorphismCommand,
      "Segregating sites, haplotypes, nucleotide diversity, theta and their variances; Pi with "
      "missing data; Pi, Theta and S along a sliding window (--grid gives the windows)",
      [](Workbench& wb, DnaPolOptions& options, JsonText* json) {
        DnaPolRun run;
        if (!RunDnaPolymorphism(wb.Data(), wb.Output(), wb.Ui(), options, &run)) return false;
        if (json != nullptr) WriteJson(*json, run.Result);
        return true;
      });
}

}  // namespace ovelt

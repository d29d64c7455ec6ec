#include "ui/cli/neutrality_commands.h"

#include "analyses/polymorphism/neutrality/fu_li_outgroup_run.h"
#include "analyses/polymorphism/neutrality/fu_li_run.h"
#include "analyses/polymorphism/neutrality/tajima_run.h"
#include "ui/cli/analysis_command.h"

namespace ovelt {

void AddNeutralityCommands(CliRegistry& registry) {
  AddAnalysisCommand<NeutralityOptions>(
      registry, kTajimaCommand,
      "Tajima's D with its significance; D along a sliding window (--grid gives the windows)",
      [](Workbench& wb, NeutralityOptions& options, JsonText* json) {
        TajimaRun run;
        if (!RunTajimaTest(wb.Data(), wb.Output(), wb.Ui(), options, &run)) return false;
        if (json != nullptr) WriteJson(*json, run.Result);
        return true;
      });
  AddAnalysisCommand<NeutralityOptions>(
      registry, kFuLiCommand,
      "Fu and Li's D* and F*, Fu's Fs and Strobeck's S; D* and F* along a sliding window",
      [](Workbench& wb, NeutralityOptions& options, JsonText* json) {
        FuLiRun run;
        if (!RunFuLiTest(wb.Data(), wb.Output(), wb.Ui(), options, &run)) return false;
        if (json != nullptr) WriteJson(*json, run.Result);
        return true;
      });
  AddAnalysisCommand<FuLiOutgroupOptions>(
      registry, kFuLiOutgroupCommand,
      "Fu and Li's D and F with an outgroup (--outgroup SET) and Fay and Wu's H; along a "
      "sliding window",
      [](Workbench& wb, FuLiOutgroupOptions& options, JsonText* json) {
        FuLiOutgroupRun run;
        if (!RunFuLiOutgroupTest(wb.Data(), wb.Output(), wb.Ui(), options, &run)) return false;
        if (json != nullptr) WriteJson(*json, run.Result);
        return true;
      });
}

}  // namespace ovelt

#include "ui/cli/size_change_commands.h"

#include "analyses/polymorphism/overview/overview_json.h"
#include "analyses/polymorphism/overview/overview_run.h"
#include "analyses/polymorphism/size_changes/size_change_json.h"
#include "analyses/polymorphism/size_changes/size_change_run.h"
#include "ui/cli/analysis_command.h"

namespace ovelt {

void AddSizeChangeCommands(CliRegistry& registry) {
  AddAnalysisCommand<SizeChangeOptions>(
      registry, kSizeChangeCode,
      "Mismatch distribution, raggedness, MAE, R2, frequency spectrum or Sn(t), with the values "
      "expected under constant size or a growth-decline",
      [](Workbench& wb, SizeChangeOptions& options, JsonText* json) {
        SizeChangeRun run;
        if (!RunSizeChange(wb.Data(), wb.Output(), wb.Ui(), options, &run)) return false;
        if (json != nullptr) WriteJson(*json, run.Result);
        return true;
      });
  AddAnalysisCommand<OverviewOptions>(
      registry, kOverviewCode,
      "All main polymorphism statistics and neutrality tests of a selection at a glance",
      [](Workbench& wb, OverviewOptions& options, JsonText* json) {
        OverviewStats stats;
        if (!RunOverview(wb.Data(), wb.Output(), wb.Ui(), options, &stats)) return false;
        if (json != nullptr) WriteJson(*json, stats);
        return true;
      });
  AddAnalysisCommand<MultiDomainOptions>(
      registry, kMultiDomainCode,
      "The overview statistics for every domain and every sequence set, as a table",
      [](Workbench& wb, MultiDomainOptions& options, JsonText* json) {
        std::vector<MultiDomainRow> rows;
        if (!RunMultiDomain(wb.Data(), wb.Output(), wb.Ui(), options, &rows)) return false;
        if (json != nullptr) WriteJson(*json, rows);
        return true;
      });
}

}  // namespace ovelt

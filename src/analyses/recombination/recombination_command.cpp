#include "analyses/recombination/recombination_command.h"

#include "analyses/recombination/recombination_compute.h"
#include "analyses/recombination/recombination_messages.h"
#include "analyses/recombination/recombination_options.h"
#include "analyses/recombination/recombination_report.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

RegionSelection RunRegion(const RecombinationOptions& options, int32_t num_sites) {
  return {options.RegionFrom, options.RegionTo == 0 ? num_sites : options.RegionTo};
}

CommandReport Report(const RecombinationResult& result, const Selection& sel,
                     const RecombinationOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.NetSites);
  report.Body = RecombinationReportBody(result);
  if (result.Rm.Status != 0) report.Notices.push_back({kRmOutOfMemory, MsgIcon::kCritical});
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> RecombinationBinding() {
  AnalysisParts<RecombinationOptions, RecombinationResult> parts;
  parts.Validate = [](const RecombinationOptions& options,
                      const ActiveData& data) -> std::optional<SelectionRefusal> {
    const RegionSelection region = RunRegion(options, data.NumSites);
    if (!RegionIsValid(region.RegionFrom, region.RegionTo, data.NumSites))
      return SelectionRefusal{kInvalidSelection, RegionFaultReason(region.RegionFrom,
                                                                   region.RegionTo, data.NumSites)};
    return std::nullopt;
  };
  parts.BusyWords = [](const RecombinationOptions&) { return kRecombinationBusy; };
  parts.Select = [](const ActiveData& data, const RecombinationOptions& options) {
    return SelectOneSet(data, 0, RunRegion(options, data.NumSites));
  };
  parts.Compute = [](const Selection& sel, const RecombinationOptions&, const Progress& progress) {
    return ComputeRecombination(sel, progress.Gauge);
  };
  parts.Report = Report;
  parts.JsonName = "Recombination";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

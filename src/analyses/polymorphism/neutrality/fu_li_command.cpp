#include "analyses/polymorphism/neutrality/fu_li_command.h"

#include "analyses/polymorphism/neutrality/fu_li_compute.h"
#include "analyses/polymorphism/neutrality/fu_li_report.h"
#include "analyses/polymorphism/neutrality/neutrality_command_steps.h"
#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

FuLiTestResult Compute(const Selection& sel, const NeutralityOptions& options,
                       const Progress& progress) {
  return ComputeFuLiTest(sel, sel.Region.RegionFrom, sel.Region.RegionTo, sel.data().UseMutations,
                         RunWindow(options, sel.data()), progress.Gauge);
}

CommandReport Report(const FuLiTestResult& result, const Selection& sel, const NeutralityOptions&) {
  CommandReport report;
  // Fs could not be computed: the report goes on without it.
  if (result.FsFailure == FsFault::kOutOfMemory)
    report.Notices.push_back({kFsOutOfMemory, MsgIcon::kCritical});
  if (result.FsFailure == FsFault::kOther) report.Notices.push_back({kFsFault, MsgIcon::kWarning});
  report.Head = ReportHead(sel, result.Totals.NetSites);
  report.Body = FuLiReportBody(result);
  if (result.Windows) {
    const FuLiWindows& windows = *result.Windows;
    AddWindowTable(
        report, sel.data().FileName, FuLiGridTitles(),
        [&windows] {
          std::vector<std::vector<std::string>> rows;
          for (const FuLiWindow& row : windows.Rows) rows.push_back(FuLiGridRow(row));
          return rows;
        },
        [&windows] { return FuLiGraph(windows); });
  }
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> FuLiBinding() {
  AnalysisParts<NeutralityOptions, FuLiTestResult> parts;
  parts.Validate = [](const NeutralityOptions& options, const ActiveData& data) {
    return ValidateNeutralityOptions(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const NeutralityOptions&) { return "Computing Haplotype Diversity..."; };
  parts.Select = [](const ActiveData& data, const NeutralityOptions& options) {
    return SelectOneSet(data, options.SelSet1,
                        RunRegion(options.RegionFrom, options.RegionTo, data.NumSites));
  };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Fu and Li's Tests";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

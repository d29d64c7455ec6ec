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
  if (result.Windows)
    AddWindows(report, sel.data().FileName, FuLiGridTitles(), *result.Windows, FuLiGridRow,
               FuLiGraph);
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> FuLiBinding() {
  auto parts = OneSetNeutralityParts<FuLiTestResult>();
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Fu and Li's Tests";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

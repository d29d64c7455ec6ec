#include "analyses/polymorphism/neutrality/tajima_command.h"

#include "analyses/polymorphism/neutrality/neutrality_command_steps.h"
#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_compute.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

TajimaTestResult Compute(const Selection& sel, const NeutralityOptions& options,
                         const Progress& progress) {
  return ComputeTajimaTest(sel, sel.Region.RegionFrom, sel.Region.RegionTo, sel.data().UseMutations,
                           RunWindow(options, sel.data()), progress.Gauge);
}

CommandReport Report(const TajimaTestResult& result, const Selection& sel,
                     const NeutralityOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.Stats.NetSites);
  report.Body = TajimaReportBody(result);
  if (!result.D) report.Notices.push_back({kNoPolymorphismsTajima, MsgIcon::kInformation});
  if (result.Windows)
    AddWindows(report, sel.data().FileName, TajimaGridTitles(), *result.Windows, TajimaGridRow,
               TajimaGraph);
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> TajimaBinding() {
  auto parts = OneSetNeutralityParts<TajimaTestResult>();
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Tajima's Test";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

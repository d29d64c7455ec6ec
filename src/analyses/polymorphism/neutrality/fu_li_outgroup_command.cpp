#include "analyses/polymorphism/neutrality/fu_li_outgroup_command.h"

#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_report.h"
#include "analyses/polymorphism/neutrality/neutrality_command_steps.h"
#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

constexpr int32_t kMinimumIntraspecific = 3;

Selection Select(const ActiveData& data, const FuLiOutgroupOptions& options) {
  Selection sel = SelectTwoSets(data, options.SelSet1, options.SelSet2,
                                RunRegion(options.RegionFrom, options.RegionTo, data.NumSites));
  if (sel.SelCount1 == 0 || sel.SelCount2 == 0) Refuse(kNoIncludedSequencesOutgroup);
  if (sel.SelCount1 < kMinimumIntraspecific) Refuse(kThreeSequencesOutgroup);
  ClassifyFirst(sel);
  return sel;
}

FuLiOutgroupResult Compute(const Selection& sel, const FuLiOutgroupOptions& options,
                           const Progress& progress) {
  return ComputeFuLiOutgroupTest(sel, sel.Region.RegionFrom, sel.Region.RegionTo,
                                 sel.data().UseMutations, RunWindow(options, sel.data()),
                                 progress.Gauge, progress.Status);
}

CommandReport Report(const FuLiOutgroupResult& result, const Selection& sel,
                     const FuLiOutgroupOptions&) {
  CommandReport report;
  report.Head = FuLiOutgroupHead(sel, result);
  report.Body = FuLiOutgroupReportBody(result);
  if (result.Windows) {
    AddWindows(report, sel.data().FileName, FuLiOutgroupGridTitles(), *result.Windows,
               FuLiOutgroupGridRow, FuLiOutgroupGraph);
  }
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> FuLiOutgroupBinding() {
  AnalysisParts<FuLiOutgroupOptions, FuLiOutgroupResult> parts;
  parts.Validate = [](const FuLiOutgroupOptions& options, const ActiveData& data) {
    return ValidateFuLiOutgroupOptions(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const FuLiOutgroupOptions&) { return "Computing Fu and Li's Tests..."; };
  parts.Select = Select;
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Fu and Li's Tests with an Outgroup";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

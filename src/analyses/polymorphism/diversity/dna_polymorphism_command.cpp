#include "analyses/polymorphism/diversity/dna_polymorphism_command.h"

#include <new>

#include "analyses/polymorphism/diversity/dna_polymorphism.h"
#include "analyses/polymorphism/diversity/dna_polymorphism_report.h"
#include "analyses/polymorphism/windows/sliding_window_gc.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

// The statistics, and G+C along the window when that was asked for instead of Pi and Theta.
struct DnaPolOutcome {
  DnaPolResult Result;
  std::optional<GcWindows> Gc;
  // The net sites the report head gives: in the missing-data mode, those of the region.
  int32_t HeadNetSites = 0;

  template <class V>
  void Visit(V& v) const {
    Result.Visit(v);
    v.Object("gc_windows", Gc);
  }
};

bool MissingDataMode(const DnaPolOptions& options) {
  return options.MissingData && !options.SlidingOn;
}

DnaPolOutcome Compute(const Selection& sel, const DnaPolOptions& options,
                      const Progress& progress) {
  const ActiveData& data = sel.data();
  const int32_t from = sel.Region.RegionFrom;
  const int32_t to = sel.Region.RegionTo;
  const SlidingWindowSpec window = DnaPolWindow(options, data.NumSites, data.GapsInWindow);
  PolyProgress poly;
  poly.Status = progress.Status;
  poly.Gauge = progress.Gauge;
  DnaPolOutcome outcome;
  outcome.Result = ComputeDnaPolymorphism(sel, from, to, options, window, poly);
  outcome.HeadNetSites =
      outcome.Result.Stats ? outcome.Result.Stats->NetSites : NetSites(sel, from, to);
  if (outcome.Result.Windows && options.GcContent) {
    try {
      outcome.Gc = ComputeGcWindows(sel, from, to, window);
    } catch (const std::bad_alloc&) {
      FailTooBig(WindowLoopFailureMessage(data.FilePath));
    }
  }
  return outcome;
}

CommandReport Report(const DnaPolOutcome& outcome, const Selection& sel, const DnaPolOptions&) {
  const DnaPolResult& result = outcome.Result;
  CommandReport report;
  report.Head = ReportHead(sel, outcome.HeadNetSites);
  report.Body = DnaPolReportBody(result, sel.data().GapsInSets);
  if (!result.Windows) return report;
  try {
    if (outcome.Gc) {
      report.Grid1.ColumnTitles = GcGridTitles();
      report.GridArray = "gc_windows.windows";
      for (const GcWindow& row : outcome.Gc->Rows) report.Grid1.Rows.push_back(GcGridRow(row));
      report.Graph = GcGraph(*outcome.Gc);
    } else {
      report.Grid1.ColumnTitles = PiThetaGridTitles();
      report.GridArray = "sliding_window.windows";
      report.Grid1.Rows.reserve(result.Windows->Rows.size());
      for (const PiThetaWindow& row : result.Windows->Rows)
        report.Grid1.Rows.push_back(PiThetaGridRow(row));
      report.Graph = PiThetaGraph(*result.Windows);
    }
  } catch (const std::bad_alloc&) {
    FailTooBig(WindowLoopFailureMessage(sel.data().FilePath));
  }
  report.ShowKinds = {kResultAddGraph, kResultTextAndGrid};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> DnaPolymorphismBinding() {
  AnalysisParts<DnaPolOptions, DnaPolOutcome> parts;
  parts.Validate = [](const DnaPolOptions& options, const ActiveData& data) {
    return ValidateDnaPolOptions(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const DnaPolOptions& options) {
    return MissingDataMode(options) ? "Computing Pi (Pairwise Deletion)..."
                                    : "Computing Haplotype Diversity...";
  };
  parts.Select = [](const ActiveData& data, const DnaPolOptions& options) {
    const int32_t to = options.RegionTo == 0 ? data.NumSites : options.RegionTo;
    return SelectOneSet(data, options.SelSet1, {options.RegionFrom, to});
  };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "DNA Polymorphism";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

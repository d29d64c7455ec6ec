#include "analyses/divergence/dna_divergence/dna_divergence_command.h"

#include <exception>
#include <new>

#include "analyses/divergence/common/site_dxy.h"
#include "analyses/divergence/dna_divergence/divergence_window_table.h"
#include "analyses/divergence/dna_divergence/dna_divergence_compute.h"
#include "analyses/divergence/dna_divergence/dna_divergence_options.h"
#include "analyses/divergence/dna_divergence/dna_divergence_report.h"
#include "command/analysis_binding.h"

namespace ovelt {

namespace {

constexpr const char* kBusyWords = "Computing DNA Divergence between populations... ";
constexpr const char* kWindowWords = "Computing DNA Div. between pops. in SW... ";
constexpr const char* kJukesCantorMemory =
    "I can't estimate Pi, Dxy and Da with the Jukes and Cantor correction, and their sampling "
    "variances. Try to reduce the number of programs running, or increase memory (RAM or "
    "virtual).\n           Out of memory !!!";
constexpr const char* kJukesCantorError =
    "Error computing Dxy with the Jukes and Cantor correction.";
constexpr const char* kDivergenceError = "Error computing DNA Divergence. M3.";
constexpr const char* kWindowError = "Error displaying DNA Divergence with SW";

Selection Select(const ActiveData& data, const DnaDivergenceOptions& options) {
  Selection sel = SelectTwoSets(data, options.SelSet1, options.SelSet2,
                                RunRegion(options.RegionFrom, options.RegionTo, data.NumSites));
  if (sel.SelCount1 == 0 && sel.SelCount2 == 0) Refuse(kNoDivergenceSequences);
  if (sel.SelCount1 == 0 || sel.SelCount2 == 0) Refuse(kOneDivergencePopulation);
  ClassifyFirst(sel);
  ClassifySecond(sel);
  return sel;
}

// The Jukes and Cantor step runs on its own: when it cannot, its box is shown and the rest of the
// report stands.
void AddJukesCantor(DnaDivergenceResult& r, const Selection& sel, const Progress& progress) {
  try {
    r.JukesCantor =
        ComputeDivergenceJukesCantor(sel, r.SiteDxy, r.RegionFrom, r.RegionTo, r.Sums.L, progress);
    r.Variances = ComputeDivergenceVariances(*r.JukesCantor, progress);
    // The pair matrices served the variances; the report reads only the means.
    r.JukesCantor->PairJC1 = {};
    r.JukesCantor->PairJC2 = {};
    r.JukesCantor->PairJCxy = {};
  } catch (const std::bad_alloc&) {
    r.JukesCantor.reset();
    r.Variances.reset();
    r.JukesCantorFailure = kJukesCantorMemory;
  } catch (const std::exception&) {
    r.JukesCantor.reset();
    r.Variances.reset();
    r.JukesCantorFailure = kJukesCantorError;
  }
}

DnaDivergenceResult Compute(const Selection& sel, const DnaDivergenceOptions& options,
                            const Progress& progress) {
  DnaDivergenceResult r;
  try {
    // With a sliding window the Jukes and Cantor step does not run; its lines say so.
    r = ComputeDnaDivergence(sel, false, progress);
    r.ComputeVariances = options.ComputeVariances;
    if (options.ComputeVariances && !options.SlidingOn && r.Sums.L >= 1)
      AddJukesCantor(r, sel, progress);
  } catch (const std::exception&) {
    Fail(kDivergenceError);
  }
  if (const auto geometry = RunWindow(options, sel.data())) {
    progress.Say(kWindowWords);
    try {
      r.Windows =
          ComputeDivergenceWindows(sel, r.SiteDxy, r.RegionFrom, r.RegionTo, *geometry, progress);
    } catch (const std::exception&) {
      Fail(kWindowError);
    }
  }
  return r;
}

CommandReport Report(const DnaDivergenceResult& result, const Selection&,
                     const DnaDivergenceOptions&) {
  CommandReport report;
  report.Body = DnaDivergenceReport(result);
  if (result.JukesCantorFailure)
    report.Notices.push_back({*result.JukesCantorFailure, MsgIcon::kCritical});
  if (!result.Windows) return report;
  report.Body += SlidingBlock(result.Windows->Geometry);
  try {
    report.Grid1.ColumnTitles = DivergenceGridTitles();
    report.GridArray = "sliding_window.windows";
    report.Grid1.Rows.reserve(result.Windows->Rows.size());
    for (const DivergenceWindow& row : result.Windows->Rows)
      report.Grid1.Rows.push_back(DivergenceGridRow(row));
    report.Graph = DivergenceGraph(*result.Windows);
  } catch (const std::exception&) {
    Fail(kWindowError);
  }
  report.ShowKinds = {kResultAddGraph, kResultTextAndGrid};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> DnaDivergenceBinding() {
  AnalysisParts<DnaDivergenceOptions, DnaDivergenceResult> parts;
  parts.Validate = [](const DnaDivergenceOptions& options, const ActiveData& data) {
    return ValidateRegionAndWindow(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const DnaDivergenceOptions&) { return kBusyWords; };
  parts.Select = Select;
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "DNA Divergence Between Populations";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

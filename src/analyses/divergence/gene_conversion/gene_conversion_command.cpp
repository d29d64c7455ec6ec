#include "analyses/divergence/gene_conversion/gene_conversion_command.h"

#include <algorithm>
#include <exception>

#include "analyses/divergence/gene_conversion/gene_conversion_compute.h"
#include "analyses/divergence/gene_conversion/gene_conversion_options.h"
#include "analyses/divergence/gene_conversion/gene_conversion_report.h"
#include "command/analysis_binding.h"

namespace ovelt {

namespace {

constexpr const char* kBusyWords = "Computing Gene Conversion parameters...";
constexpr const char* kComputeError = "Error computing Gene Conversion parameters. M3.";
constexpr const char* kGridError = "Error.  Can't display Gene Conversion informative sites";

Selection Select(const ActiveData& data, const GeneConversionOptions& options) {
  Selection sel = SelectTwoSets(data, options.SelSet1, options.SelSet2,
                                RunRegion(options.RegionFrom, options.RegionTo, data.NumSites));
  if (std::min(sel.SelCount1, sel.SelCount2) < 3 || std::max(sel.SelCount1, sel.SelCount2) < 5)
    Refuse(kConversionSampleTooSmall);
  ClassifyFirst(sel);
  ClassifySecond(sel);
  return sel;
}

GeneConversionResult Compute(const Selection& sel, const GeneConversionOptions& options,
                             const Progress& progress) {
  try {
    return ComputeGeneConversion(sel, RunWindow(options, sel.data()), progress);
  } catch (const std::exception&) {
    Fail(kComputeError);
  }
}

CommandReport Report(const GeneConversionResult& result, const Selection&,
                     const GeneConversionOptions&) {
  CommandReport report;
  report.Body = GeneConversionReport(result);
  try {
    if (result.Windows) {
      report.Body += SlidingBlock(result.Windows->Geometry);
      report.Grid1.ColumnTitles = ConversionWindowTitles();
      report.GridArray = "sliding_window.windows";
      for (const ConversionWindow& row : result.Windows->Rows)
        report.Grid1.Rows.push_back(ConversionWindowRow(row));
      report.Graph = ConversionGraph(*result.Windows);
      report.ShowKinds = {kResultAddGraph, kResultTextAndGrid};
    } else {
      report.Grid1.ColumnTitles = InformativeSiteTitles();
      report.GridArray = "informative_sites";
      report.GridTextHead = InformativeSiteTextHead();
      for (const InformativeSite& row : result.InformativeSites())
        report.Grid1.Rows.push_back(InformativeSiteRow(row));
      report.ShowKinds = {kResultTextAndGrid};
    }
  } catch (const std::exception&) {
    Fail(kGridError);
  }
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> GeneConversionBinding() {
  AnalysisParts<GeneConversionOptions, GeneConversionResult> parts;
  parts.Validate = [](const GeneConversionOptions& options, const ActiveData& data) {
    return ValidateRegionAndWindow(options, data.NumSites, data.GapsInWindow);
  };
  parts.BusyWords = [](const GeneConversionOptions&) { return kBusyWords; };
  parts.Select = Select;
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Gene Conversion";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

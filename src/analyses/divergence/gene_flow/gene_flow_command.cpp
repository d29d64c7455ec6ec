#include "analyses/divergence/gene_flow/gene_flow_command.h"

#include <exception>
#include <new>

#include "analyses/divergence/gene_flow/gene_flow_compute.h"
#include "analyses/divergence/gene_flow/gene_flow_options.h"
#include "analyses/divergence/gene_flow/gene_flow_report.h"
#include "command/analysis_binding.h"

namespace ovelt {

namespace {

constexpr const char* kOutOfMemory = "Out of memory !!";

int32_t RegionEnd(const GeneFlowOptions& options, const ActiveData& data) {
  return options.RegionTo == 0 ? data.NumSites : options.RegionTo;
}

Selection Select(const ActiveData& data, const GeneFlowOptions& options) {
  const FlowPopulationChoice choice = ChooseFlowPopulations(data);
  if (choice.Refusal) Refuse(*choice.Refusal);
  Selection sel;
  sel.Data = &data;
  sel.Region = {options.RegionFrom, RegionEnd(options, data)};
  for (const auto& [name, members] : choice.Sets)
    sel.SelOutCount += static_cast<int32_t>(members.size());
  return sel;
}

GeneFlowResult Compute(const Selection& sel, const GeneFlowOptions& options,
                       const Progress& progress) {
  const ActiveData& data = sel.data();
  auto sample = BuildGeneFlowSample(data, ChooseFlowPopulations(data), sel.Region.RegionFrom,
                                    sel.Region.RegionTo, options.GapMode);
  if (const auto* refusal = std::get_if<std::string>(&sample)) Refuse(*refusal);
  try {
    return ComputeGeneFlow(
        std::get<GeneFlowSample>(sample), data.FilePath, sel.Region.RegionFrom, sel.Region.RegionTo,
        options.Permutation ? options.Replicates : 0, options.Seed,
        NmDivisor(data.Format.ChromosomalLocation, data.Format.GenomeState), progress);
  } catch (const std::bad_alloc&) {
    Fail(kOutOfMemory);
  }
}

CommandReport Report(const GeneFlowResult& result, const Selection&, const GeneFlowOptions&) {
  CommandReport report;
  report.Body = GeneFlowReport(result);
  report.Grid1.ColumnTitles = GeneFlowPairTitles();
  report.GridArray = "population_pairs";
  for (const GeneFlowPair& pair : result.Pairs) report.Grid1.Rows.push_back(GeneFlowPairRow(pair));
  report.GeneFlow = GeneFlowPairTable(result);
  report.ShowKinds = {kResultTextAndGrid};
  if (result.Replicates > 0) {
    report.Grid2.ColumnTitles = GeneFlowTestTitles();
    for (const GeneFlowPair& pair : result.Pairs)
      report.Grid2.Rows.push_back(GeneFlowTestRow(pair));
    report.ShowKinds.push_back(kResultSecondGrid);
  }
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> GeneFlowBinding() {
  AnalysisParts<GeneFlowOptions, GeneFlowResult> parts;
  parts.Validate = [](const GeneFlowOptions& options, const ActiveData& data) {
    return ValidateGeneFlowOptions(options, data.NumSites);
  };
  parts.BusyWords = [](const GeneFlowOptions&) { return "Computing Gene Flow (1/4) ..."; };
  parts.Select = Select;
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Gene Flow and Genetic Differentiation";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

#include "analyses/linkage/linkage_command.h"

#include <memory>

#include "analyses/linkage/linkage_compute.h"
#include "analyses/linkage/linkage_graph.h"
#include "analyses/linkage/linkage_report.h"
#include "analyses/linkage/linkage_table.h"
#include "command/analysis_binding.h"
#include "core/report_head.h"
#include "output/too_big_prompt.h"

namespace ovelt {

namespace {

CommandReport Report(const LinkageResult& result, const Selection& sel, const LinkageOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.NetSites);
  report.Body = LinkageReportBody(result);
  report.GridTextHead = LinkageTextHead(result.Tests());
  report.Graph = LinkageGraph(result);
  const auto rows = static_cast<int64_t>(result.Pairs().size());
  if (IsGridTooBig(rows)) {
    // The lines are made as the file is written, from the pairs the result shares.
    auto kept = std::make_shared<const LinkageResult>(result);  // the pairs are not copied
    CommandReport::LongTable table;
    table.Rows = rows;
    table.Row = [kept](int64_t r) {
      return std::vector<std::string>{LinkageFileLine(kept->Pairs()[static_cast<size_t>(r)])};
    };
    table.FileHead = [kept](const Platform::DateTime& when) {
      return LinkageFileHead(*kept, when);
    };
    table.DeclineEndsRun = true;
    report.LongGrid = std::move(table);
    report.ShowKinds = {kResultAddGraph, kResultTextOnly};
    return report;
  }
  report.Grid1.ColumnTitles = LinkageGridTitles(result.Tests());
  report.GridArray = "site_pairs";
  report.Grid1.Rows.reserve(static_cast<size_t>(rows));
  for (const LinkagePairRow& row : result.Pairs())
    report.Grid1.Rows.push_back(LinkageGridCells(row));
  report.ShowKinds = {kResultAddGraph, kResultTextAndGrid};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> LinkageBinding() {
  AnalysisParts<LinkageOptions, LinkageResult> parts;
  parts.Validate = [](const LinkageOptions& options, const ActiveData& data) {
    return ValidateLinkageOptions(options, data.NumSites);
  };
  parts.BusyWords = [](const LinkageOptions&) { return kLinkageBusyFirst; };
  parts.Select = [](const ActiveData& data, const LinkageOptions& options) {
    const int32_t to = options.RegionTo == 0 ? data.NumSites : options.RegionTo;
    return SelectOneSet(data, 0, {options.RegionFrom, to});
  };
  parts.Compute = [](const Selection& sel, const LinkageOptions& options,
                     const Progress& progress) { return ComputeLinkage(sel, options, progress); };
  parts.Report = Report;
  parts.JsonName = "Linkage Disequilibrium";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

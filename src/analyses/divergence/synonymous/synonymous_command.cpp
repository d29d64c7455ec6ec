#include "analyses/divergence/synonymous/synonymous_command.h"

#include <chrono>

#include "analyses/divergence/synonymous/synonymous_compute.h"
#include "analyses/divergence/synonymous/synonymous_pair_table.h"
#include "analyses/divergence/synonymous/synonymous_report.h"
#include "command/analysis_binding.h"
#include "core/report_head.h"
#include "output/too_big_prompt.h"

namespace ovelt {

namespace {

constexpr const char* kBusyWords = "Computing Syn. and NonSyn. substitutions... ";
constexpr const char* kDisplayingWords = "Computing and displaying output...";

// A run without a seed of its own draws its ties from the clock.
int64_t ClockSeed() {
  return std::chrono::system_clock::now().time_since_epoch().count();
}

SynonymousResult Compute(const Selection& sel, const SynonymousOptions& options,
                         const Progress& progress) {
  TieBreaker ties(options.Seed != 0 ? options.Seed : ClockSeed());
  return ComputeSynonymous(sel, options, ties, progress);
}

CommandReport Report(const SynonymousResult& result, const Selection& sel,
                     const SynonymousOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.NetSites);
  report.Body = SynonymousReportBody(result);
  report.Status = kDisplayingWords;
  if (result.StopFound) report.Notices.push_back({kStopCodonNotice, MsgIcon::kInformation});
  if (!result.Pairs) return report;
  const bool silent = result.Silent.has_value();
  report.GridTextHead = SynonymousPairTextHead(silent);
  const auto rows = static_cast<int64_t>(result.Pairs->SynDif.Pairs());
  const int32_t n = result.Sequences;
  if (IsGridTooBig(rows)) {
    // The rows are made as the file is written, from the numbers the result shares.
    auto kept = std::make_shared<const SynonymousResult>(result);
    CommandReport::LongTable table;
    table.Rows = rows;
    table.Row = [kept, n](int64_t row) {
      const auto [i, j] = PairOfRow(n, row);
      return SynonymousPairCells(*kept, i, j);
    };
    report.LongGrid = std::move(table);
    return report;
  }
  report.Grid1.ColumnTitles = SynonymousPairTitles(silent);
  report.GridArray = "pair_table";
  report.Grid1.Rows.reserve(static_cast<size_t>(rows));
  for (int32_t i = 1; i < n; ++i)
    for (int32_t j = i + 1; j <= n; ++j)
      report.Grid1.Rows.push_back(SynonymousPairCells(result, i, j));
  report.ShowKinds = {kResultTextAndGrid};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> SynonymousBinding() {
  AnalysisParts<SynonymousOptions, SynonymousResult> parts;
  parts.Validate = [](const SynonymousOptions& options, const ActiveData& data) {
    return ValidateSynonymousOptions(options, data.NumSites);
  };
  parts.BusyWords = [](const SynonymousOptions&) { return kBusyWords; };
  parts.Select = [](const ActiveData& data, const SynonymousOptions& options) {
    const int32_t to = options.RegionTo == 0 ? data.NumSites : options.RegionTo;
    return SelectOneSet(data, options.SelSet1, {options.RegionFrom, to});
  };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Synonymous and NonSyn. Substitutions";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

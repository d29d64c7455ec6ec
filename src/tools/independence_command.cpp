#include "tools/independence_command.h"

#include "command/tool_binding.h"
#include "stats/stats_error.h"
#include "tools/independence_check.h"
#include "tools/independence_options.h"
#include "tools/independence_report.h"
#include "tools/independence_run.h"

namespace ovelt {

namespace {

std::optional<ToolRefusal> Validate(const IndependenceOptions& options) {
  TwoByTwoTable table;
  if (const auto refusal = F12Filtros(options, table))
    return ToolRefusal{refusal->Text, refusal->Title};
  return std::nullopt;
}

IndependenceRun Compute(const IndependenceOptions& options, const Progress& progress) {
  IndependenceRun run;
  // The checks passed in Validate; this reads the same cells again.
  if (const auto refusal = F12Filtros(options, run.Table)) RefuseTitled(refusal->Text, refusal->Title);
  try {
    run.Result = ComputeIndependence(run.Table);
  } catch (const StatsError& e) {
    Fail(e.what());
  }
  if (progress.Gauge) progress.Gauge(100);
  return run;
}

CommandReport Report(const IndependenceRun& run, const IndependenceOptions&) {
  CommandReport report;
  report.Body = IndependenceReportText(run.Table, run.Result);
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> IndependenceBinding() {
  ToolParts<IndependenceOptions, IndependenceRun> parts;
  parts.Validate = Validate;
  parts.BusyWords = [](const IndependenceOptions&) { return kIndependenceStatus; };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Tests of Independence";
  return MakeTool(std::move(parts));
}

}  // namespace ovelt

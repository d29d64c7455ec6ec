#include "coalescent/coalescent_command.h"

#include <exception>
#include <new>
#include <variant>

#include "coalescent/coalescent_options.h"
#include "coalescent/coalescent_run.h"
#include "coalescent/simulation_report.h"
#include "command/tool_binding.h"

namespace ovelt {

namespace {

// The fields read in the dialog's order; the first refusal, or the parameters of the run.
std::variant<SimulationSpec, SimulationMessage> Read(const CoalescentOptions& options) {
  const auto form = FormOfOptions(options);
  if (const auto* refusal = std::get_if<SimulationMessage>(&form)) return *refusal;
  return ReadSimulationForm(std::get<SimulationForm>(form));
}

CoalescentRun Compute(const CoalescentOptions& options, const Progress& progress) {
  const SimulationSpec sim = std::get<SimulationSpec>(Read(options));
  CoalescentRun run;
  run.Input = sim;
  run.Threads = options.Threads < 2 ? 1 : options.Threads;
  try {
    run.Result = RunSimulation(
        sim,
        [&progress](int percent) {
          if (progress.Gauge) progress.Gauge(percent);
        },
        options.Threads);
  } catch (const std::bad_alloc&) {
    Fail(
        "             Out of memory !!!\nTry to reduce the number of programs running, or try "
        "to increase the RAM or virtual memory");
  } catch (const std::exception& e) {
    Fail(std::string("Error in the Coalescent Module: ") + e.what());
  }
  if (progress.Gauge) progress.Gauge(100);
  return run;
}

CommandReport Report(const CoalescentRun& run, const CoalescentOptions&) {
  CommandReport report;
  report.Body = SimulationReportText(run.Input, run.Result);
  report.Status = kCoalescentDoneStatus;
  if (const auto notice = NoEffectiveReplicatesNotice(run))
    report.Notices.push_back({notice->Text, MsgIcon::kWarning});
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> CoalescentBinding() {
  ToolParts<CoalescentOptions, CoalescentRun> parts;
  parts.Validate = [](const CoalescentOptions& options) -> std::optional<ToolRefusal> {
    const auto read = Read(options);
    if (const auto* refusal = std::get_if<SimulationMessage>(&read))
      return ToolRefusal{refusal->Text, refusal->Title};
    return std::nullopt;
  };
  parts.BusyWords = [](const CoalescentOptions&) { return kCoalescentBusyStatus; };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.Notices = [](const CoalescentOptions& options) {
    std::vector<std::string> notices;
    const auto form = FormOfOptions(options);
    if (const auto* f = std::get_if<SimulationForm>(&form)) {
      if (const auto notice = ThetaFromSegSitesNotice(f->Given, f->Statistic))
        notices.push_back(notice->Text);
    }
    return notices;
  };
  parts.JsonName = "Coalescent Simulations";
  return MakeTool(std::move(parts));
}

}  // namespace ovelt

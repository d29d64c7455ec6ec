#include "coalescent/coalescent_run.h"

#include <exception>
#include <new>
#include <variant>

#include "coalescent/simulation_report.h"
#include "coalescent/statistic_code.h"

namespace ovelt {

std::optional<SimulationMessage> RunCoalescent(OutputChannel& channel, const SimulationForm& form,
                                               int32_t threads, CoalescentRun* run) {
  auto read = ReadSimulationForm(form);
  if (auto* refusal = std::get_if<SimulationMessage>(&read)) {
    channel.ReopenDialog = 1;
    return *refusal;
  }
  const SimulationSpec sim = std::get<SimulationSpec>(read);

  channel.ResetOutputs();
  channel.SetBusy(true, kCoalescentBusyStatus);
  SimulationResult result;
  try {
    result = RunSimulation(
        sim, [&channel](int percent) { channel.RaiseGauge(percent); }, threads);
  } catch (const std::bad_alloc&) {
    channel.EndFailedRun();
    return SimulationMessage{
        "             Out of memory !!!\nTry to reduce the number of programs running, or try to "
        "increase the RAM or virtual memory"};
  } catch (const std::exception& e) {
    channel.EndFailedRun();
    return SimulationMessage{std::string("Error in the Coalescent Module: ") + e.what()};
  }
  channel.RaiseGauge(100);
  channel.AppendText(SimulationReportText(sim, result));
  channel.ResultCode = kCoalescentCommand;
  channel.Labels.Title = "Coalescent Simulations";
  channel.ShowResult(kResultTextOnly);
  channel.SetBusy(false);
  channel.SetStatus(kCoalescentDoneStatus);
  if (run != nullptr) *run = {sim, result, threads < 2 ? 1 : threads};
  return std::nullopt;
}

std::optional<SimulationMessage> NoEffectiveReplicatesNotice(const CoalescentRun& run) {
  if (run.Result.EffectiveReplicates > 0) return std::nullopt;
  const StatisticEntry* e = FindStatistic(run.Input.StatisticCode);
  const std::string name = e != nullptr ? e->Name : "the statistic";
  return SimulationMessage{"There are 0 effective replicates: no replicate gave a value of " +
                           name +
                           ".\nThe confidence limits, the probability and the average values "
                           "can not be determined. Try a larger theta or more replicates."};
}

void WriteJson(JsonText& json, const CoalescentRun& run) {
  const SimulationSpec& s = run.Input;
  const SimulationResult& r = run.Result;
  const StatisticEntry* e = FindStatistic(s.StatisticCode);
  json.BeginObject();
  json.BeginObject("input");
  if (s.SegSitesGiven()) {
    json.Integer("segregating_sites", s.SegSites);
  } else {
    json.Number("theta", s.Theta);
  }
  json.Integer("sample_size", s.SampleSize)
      .Integer("replicates", s.Replicates)
      .String("statistic", e->CliName)
      .Integer("statistic_code", s.StatisticCode)
      .Number("observed", s.ObservedValue)
      .Number("confidence_percent", s.ConfidencePercent)
      .Integer("recombination_choice", s.RecombinationChoice)
      .Number("recombination_r", s.RecombinationR)
      .Integer("sites", s.SitesInRegion)
      .Integer("seed", r.Seed)
      .Integer("threads", run.Threads);
  json.EndObject();
  json.BeginObject("result")
      .Number("lower_limit", r.LowerLimit)
      .Number("upper_limit", r.UpperLimit)
      .Number("probability_le", r.ProbabilityLE)
      .Number("average_statistic", r.AverageStatistic)
      .Number("average_pi", r.AveragePi)
      .Integer("effective_replicates", r.EffectiveReplicates)
      .Integer("failed_replicates", r.FailedReplicates)
      .Integer("tail_size", r.TailSize);
  json.EndObject();
  json.EndObject();
}

}  // namespace ovelt

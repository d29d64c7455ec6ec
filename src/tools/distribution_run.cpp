#include "tools/distribution_run.h"

#include <cmath>
#include <functional>
#include <string>

#include "stats/stats_error.h"
#include "tools/binomial_distribution.h"
#include "tools/distribution_messages.h"
#include "tools/distribution_report.h"
#include "tools/hypergeometric_distribution.h"
#include "tools/poisson_distribution.h"

namespace ovelt {
namespace {

// The steps every tab shares, around its own check, computation and report.
template <class Input, class Result>
std::optional<ToolMessage> RunTab(
    OutputChannel& channel, std::optional<int16_t> refusal, const Input& input,
    const std::function<Result(const Input&)>& compute,
    const std::function<std::string(const Input&, const Result&)>& report, Result* result_out) {
  if (refusal) {
    channel.ReopenDialog = 1;
    return F20Filtros(*refusal);
  }
  channel.ResetOutputs();
  channel.SetBusy(true, kDistributionsStatus);
  Result result;
  try {
    result = compute(input);
  } catch (const StatsError& e) {
    channel.EndFailedRun();
    return ToolMessage{e.what()};
  }
  channel.RaiseGauge(100);
  channel.AppendText(report(input, result));
  channel.ResultCode = kDistributionsResultCode;
  channel.Labels.Title = "Discrete Distributions";
  channel.ShowResult(kResultTextOnly);
  channel.SetBusy(false);
  if (result_out != nullptr) *result_out = result;
  return std::nullopt;
}

void ProbabilitiesJson(JsonText& json, const DiscreteProbabilities& r) {
  json.Number("p_equal", r.PEqual)
      .Number("p_less", r.PLess)
      .Number("mean", r.Mean)
      .Number("variance", r.Variance)
      .Number("sd", std::sqrt(r.Variance));
}

}  // namespace

std::optional<ToolMessage> RunBinomial(OutputChannel& channel, const BinomialOptions& boxes,
                                       BinomialRun* run) {
  BinomialInput input;
  const auto refusal = CheckBinomial(boxes, input);
  DiscreteProbabilities result;
  auto message = RunTab<BinomialInput, DiscreteProbabilities>(
      channel, refusal, input,
      [](const BinomialInput& in) { return BinomialProbabilities(in.P, in.N, in.K); },
      BinomialReportText, &result);
  if (!message && run != nullptr) *run = {input, result};
  return message;
}

std::optional<ToolMessage> RunHypergeometric(OutputChannel& channel,
                                             const HypergeometricOptions& boxes,
                                             HypergeometricRun* run) {
  HypergeometricInput input;
  const auto refusal = CheckHypergeometric(boxes, input);
  DiscreteProbabilities result;
  auto message = RunTab<HypergeometricInput, DiscreteProbabilities>(
      channel, refusal, input,
      [](const HypergeometricInput& in) {
        return HypergeometricProbabilities(in.Population, in.Successes, in.N, in.K);
      },
      HypergeometricReportText, &result);
  if (!message && run != nullptr) *run = {input, result};
  return message;
}

std::optional<ToolMessage> RunPoisson(OutputChannel& channel, const PoissonOptions& boxes,
                                      PoissonRun* run) {
  PoissonInput input;
  const auto refusal = CheckPoisson(boxes, input);
  DiscreteProbabilities result;
  auto message = RunTab<PoissonInput, DiscreteProbabilities>(
      channel, refusal, input,
      [](const PoissonInput& in) { return PoissonProbabilities(in.Lambda, in.K); },
      PoissonReportText, &result);
  if (!message && run != nullptr) *run = {input, result};
  return message;
}

std::optional<ToolMessage> RunEwens(OutputChannel& channel, const EwensOptions& boxes,
                                    const EwensTailSource& tail, EwensRun* run) {
  EwensInput input;
  const auto refusal = CheckEwens(boxes, input);
  EwensResult result;
  auto message = RunTab<EwensInput, EwensResult>(
      channel, refusal, input, [&tail](const EwensInput& in) { return ComputeEwens(in, tail); },
      EwensReportText, &result);
  if (!message && run != nullptr) *run = {input, result};
  return message;
}

void WriteJson(JsonText& json, const BinomialRun& run) {
  json.BeginObject().String("distribution", "binomial");
  json.Number("p", run.Input.P).Integer("n", run.Input.N).Integer("k", run.Input.K);
  ProbabilitiesJson(json, run.Result);
  json.EndObject();
}

void WriteJson(JsonText& json, const HypergeometricRun& run) {
  json.BeginObject().String("distribution", "hypergeometric");
  json.Integer("population", run.Input.Population)
      .Integer("successes", run.Input.Successes)
      .Integer("n", run.Input.N)
      .Integer("k", run.Input.K);
  ProbabilitiesJson(json, run.Result);
  json.EndObject();
}

void WriteJson(JsonText& json, const PoissonRun& run) {
  json.BeginObject().String("distribution", "poisson");
  json.Number("lambda", run.Input.Lambda).Integer("k", run.Input.K);
  ProbabilitiesJson(json, run.Result);
  json.EndObject();
}

void WriteJson(JsonText& json, const EwensRun& run) {
  json.BeginObject().String("distribution", "ewens");
  json.Integer("sample_size", run.Input.SampleSize)
      .Integer("nhap", run.Input.NHap)
      .Number("theta", run.Input.Theta)
      .Number("p_equal", run.Result.PEqual)
      .Number("strobeck_s", run.Result.StrobeckS)
      .Number("expected_nhap", run.Result.Expected);
  if (run.Result.Fs) {
    json.Number("fs", *run.Result.Fs);
  } else {
    json.Null("fs");
  }
  json.EndObject();
}

}  // namespace ovelt

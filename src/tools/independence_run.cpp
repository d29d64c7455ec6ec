#include "tools/independence_run.h"

#include "stats/marks.h"
#include "stats/stats_error.h"
#include "tools/independence_check.h"
#include "tools/independence_report.h"

namespace ovelt {

std::optional<ToolMessage> RunIndependence(OutputChannel& channel,
                                           const IndependenceOptions& options,
                                           IndependenceRun* run) {
  TwoByTwoTable table;
  if (auto refusal = F12Filtros(options, table)) {
    channel.ReopenDialog = 1;
    return refusal;
  }

  channel.ResetOutputs();
  channel.SetBusy(true, kIndependenceStatus);
  IndependenceResult result;
  try {
    result = ComputeIndependence(table);
  } catch (const StatsError& e) {
    channel.EndFailedRun();
    return ToolMessage{e.what()};
  }
  channel.RaiseGauge(100);
  channel.AppendText(IndependenceReportText(table, result));
  channel.ResultCode = kIndependenceResultCode;
  channel.Labels.Title = "Tests of Independence";
  channel.ShowResult(kResultTextOnly);
  channel.SetBusy(false);
  if (run != nullptr) *run = {table, result};
  return std::nullopt;
}

namespace {

void TestJson(JsonText& json, std::string_view key, double value, double p) {
  json.BeginObject(key)
      .Number("value", value)
      .Number("p", p)
      .String("mark", PMarkText(p))
      .EndObject();
}

}  // namespace

void WriteJson(JsonText& json, const IndependenceRun& run) {
  const TwoByTwoTable& t = run.Table;
  const IndependenceResult& r = run.Result;
  json.BeginObject();
  json.BeginObject("table").Integer("a", t.a).Integer("b", t.b).Integer("c", t.c).Integer("d", t.d);
  json.EndObject();
  json.BeginObject("fisher")
      .Number("one_tailed", r.FisherOneTail)
      .String("one_tailed_mark", PMarkText(r.FisherOneTail))
      .Number("two_tailed", r.FisherTwoTail)
      .String("two_tailed_mark", PMarkText(r.FisherTwoTail))
      .EndObject();
  TestJson(json, "chi_square", r.ChiSquare, r.ChiSquareP);
  TestJson(json, "chi_square_yates", r.ChiSquareYates, r.ChiSquareYatesP);
  TestJson(json, "g", r.G, r.GP);
  TestJson(json, "g_williams", r.GWilliams, r.GWilliamsP);
  TestJson(json, "g_yates", r.GYates, r.GYatesP);
  json.EndObject();
}

}  // namespace ovelt

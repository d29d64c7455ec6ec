#include "analyses/polymorphism/neutrality/tajima_run.h"

#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_run_steps.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "core/site_scan.h"

namespace ovelt {

bool RunTajimaTest(ActiveData& ad, OutputChannel& channel, Platform& platform,
                   const NeutralityOptions& options, TajimaRun* run) {
  const std::optional<NeutralityRunStart> start =
      StartNeutralityRun(ad, channel, platform, options, kTajimaCommand);
  if (!start) return false;
  const int32_t from = start->From;
  const int32_t to = start->To;
  const std::optional<SlidingWindowSpec>& window = start->Window;

  TajimaRun local;
  TajimaRun& out = run != nullptr ? *run : local;
  try {
    out.Result = ComputeTajimaTest(ad, from, to, ad.UseMutations, window,
                                   [&channel](int percent) { channel.RaiseGauge(percent); });
  } catch (const NeutralityFailure& failure) {
    return FailRun(channel, platform, failure.what());
  }

  channel.ResultCode = kTajimaCommand;
  ad.ResultCode = kTajimaCommand;
  const std::string head = ReportHead(ad, out.Result.Stats.NetSites);
  channel.HeaderBlock = head;
  channel.AppendText(head + TajimaReportBody(out.Result));
  if (!out.Result.Determined) platform.MessageBox(kNoPolymorphismsTajima, MsgIcon::kInformation);
  if (out.Result.Windows) {
    const TajimaWindows& w = *out.Result.Windows;
    const bool shown = ShowWindowTable(
        ad, channel, platform, TajimaGridTitles(),
        [&w] {
          std::vector<std::vector<std::string>> rows;
          for (const TajimaWindow& row : w.Rows) rows.push_back(TajimaGridRow(row, w.Sequences));
          return rows;
        },
        [&w] { return TajimaGraph(w); }, out.Graph);
    if (!shown) return false;
  } else {
    channel.ShowResult(kResultTextOnly);
  }
  channel.SetBusy(false);
  return true;
}

void WriteJson(JsonText& json, const TajimaTestResult& r) {
  json.BeginObject();
  json.String("analysis", "Tajima's Test");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences);
  json.Bool("use_mutations", r.UseMutations);
  json.Integer("net_sites", r.Stats.NetSites);
  json.Integer("segregating_sites", r.Stats.SegSites);
  json.Number("mutations", r.Stats.Mutations);
  json.Number("k", r.Stats.AvgDiffs).Number("pi", r.Stats.PiValue);
  json.Number("theta_sequence", r.ThetaSequence).Number("theta_site", r.ThetaSite);
  if (r.Determined) {
    json.Number("tajima_d", r.D);
    json.String("significance", SignificanceTajima(r.D, r.Sequences));
  } else {
    json.Null("tajima_d");
  }
  if (r.Windows) {
    const TajimaWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength).Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const TajimaWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Integer("s", row.SegSites).Number("k", row.K);
      if (row.Determined) {
        json.Number("d", row.D).String("significance", SignificanceTajima(row.D, w.Sequences));
      } else {
        json.Null("d").String("significance", "n.d.");
      }
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt

#include "analyses/polymorphism/fu_li_outgroup_run.h"

#include <cmath>

#include "analyses/polymorphism/fu_li_outgroup_report.h"
#include "analyses/polymorphism/neutrality_failure.h"
#include "analyses/polymorphism/neutrality_run_steps.h"
#include "analyses/polymorphism/neutrality_significance.h"
#include "analyses/polymorphism/neutrality_window_report.h"
#include "core/site_scan.h"

namespace ovelt {
namespace {

constexpr int32_t kMinimumIntraspecific = 3;

bool RefuseSelection(OutputChannel& channel, Platform& platform, const std::string& message) {
  channel.RunFailed = 1;
  return RefuseRun(channel, platform, {message, ""});
}

void WriteSignificance(JsonText& json, const char* key, double value, FuLiTable table, int32_t n) {
  json.String(key, MarkText(SignificanceFuLi(value, table, n)));
}

}  // namespace

bool RunFuLiOutgroupTest(ActiveData& ad, OutputChannel& channel, Platform& platform,
                         const FuLiOutgroupOptions& options, FuLiOutgroupRun* run) {
  if (auto refusal = ValidateFuLiOutgroupOptions(options, ad.NumSites, ad.GapsInWindow))
    return RefuseRun(channel, platform, *refusal);
  const int32_t from = options.RegionFrom;
  const int32_t to = options.RegionTo == 0 ? ad.NumSites : options.RegionTo;
  std::optional<SlidingWindowSpec> window;
  if (options.SlidingOn)
    window = NeutralityWindow(options.WindowLength, options.StepSize, ad.NumSites, ad.GapsInWindow);

  channel.ResetOutputs();
  channel.SetBusy(true, "Computing Fu and Li's Tests...");
  ad.Region = {from, to};
  ad.SelSites = ad.NumSites;
  SelectTwoSets(ad, options.SelSet1, options.SelSet2);
  if (ad.SelCount1 == 0 || ad.SelCount2 == 0)
    return RefuseSelection(channel, platform, kNoIncludedSequencesOutgroup);
  if (ad.SelCount1 < kMinimumIntraspecific)
    return RefuseSelection(channel, platform, kThreeSequencesOutgroup);
  ClassifySelection1(ad);
  DiversitySelection1(ad);

  FuLiOutgroupRun local;
  FuLiOutgroupRun& out = run != nullptr ? *run : local;
  try {
    out.Result = ComputeFuLiOutgroupTest(
        ad, from, to, ad.UseMutations, window,
        [&channel](int percent) { channel.RaiseGauge(percent); },
        [&channel](const std::string& words) { channel.SetStatus(words); });
  } catch (const NeutralityFailure& failure) {
    return FailRun(channel, platform, failure.what());
  }

  channel.ResultCode = kFuLiOutgroupCommand % 1000;
  ad.ResultCode = channel.ResultCode;
  const std::string head = FuLiOutgroupHead(ad, out.Result);
  channel.HeaderBlock = head;
  channel.AppendText(head + FuLiOutgroupReportBody(out.Result));
  if (out.Result.Windows) {
    const FuLiOutgroupWindows& w = *out.Result.Windows;
    const bool shown = ShowWindowTable(
        ad, channel, platform, FuLiOutgroupGridTitles(),
        [&w] {
          std::vector<std::vector<std::string>> rows;
          for (const FuLiOutgroupWindow& row : w.Rows)
            rows.push_back(FuLiOutgroupGridRow(row, w.Sequences));
          return rows;
        },
        [&w] { return FuLiOutgroupGraph(w); }, out.Graph);
    if (!shown) return false;
  } else {
    channel.ShowResult(kResultTextOnly);
  }
  channel.SetBusy(false);
  return true;
}

void WriteJson(JsonText& json, const FuLiOutgroupResult& r) {
  const NeutralityTotals& t = r.Totals;
  json.BeginObject();
  json.String("analysis", "Fu and Li's Tests with an Outgroup");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences).Integer("outgroup_sequences", r.OutgroupSequences);
  json.Bool("use_mutations", r.UseMutations);
  json.Integer("net_sites", t.NetSites).Integer("segregating_sites", t.SegSites);
  json.BeginArray("ambiguous_sites");
  for (const int32_t site : r.AmbiguousSites) json.Integer({}, site);
  json.EndArray();
  json.Integer("mutations", t.TotalMutations).Integer("eta", t.Eta);
  json.Integer("eta_e", t.EtaE).Integer("eta_s", t.EtaS);
  json.Number("k", t.K).Number("pi", r.Pi);
  json.Number("theta_k", r.ThetaK).Number("theta_eta_e", r.ThetaEtaE);
  json.Number("theta_eta", r.ThetaEta);
  json.Number("fu_li_d", r.D);
  WriteSignificance(json, "fu_li_d_significance", r.D, FuLiTable::kD, r.Sequences);
  json.Number("fu_li_f", r.F);
  WriteSignificance(json, "fu_li_f_significance", r.F, FuLiTable::kF, r.Sequences);
  json.Number("theta_h", r.FayWu.ThetaH).Number("theta_pi", r.FayWu.ThetaPi);
  json.Number("fay_wu_h", r.FayWu.H);
  if (r.Windows) {
    const FuLiOutgroupWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength).Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const FuLiOutgroupWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Integer("eta", row.Eta).Integer("eta_e", row.EtaE).Number("k", row.K);
      json.Number("fu_li_d", row.Determined ? row.D : NAN);
      json.Number("fu_li_f", row.Determined ? row.F : NAN);
      json.Number("fay_wu_h", row.FayWu.H);
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt

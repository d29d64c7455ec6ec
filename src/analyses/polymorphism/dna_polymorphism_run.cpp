#include "analyses/polymorphism/dna_polymorphism_run.h"

#include "analyses/polymorphism/sliding_window_gc.h"

#include <new>

#include "analyses/polymorphism/dna_polymorphism_report.h"
#include "analyses/polymorphism/sliding_window_gc.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

bool Refuse(OutputChannel& channel, Platform& platform, const SelectionRefusal& refusal) {
  platform.MessageBox(refusal.Text, MsgIcon::kWarning);
  platform.ExplainRefusal(refusal.Reason);
  channel.ReopenDialog = 1;
  return false;
}

bool Fail(OutputChannel& channel, Platform& platform, const std::string& message) {
  platform.MessageBox(message, MsgIcon::kWarning);
  channel.RunFailed = 1;
  channel.SetBusy(false);
  return false;
}

// A fault in the loop over the windows: the too-big flag, the message, and the run ends.
bool FailWindows(OutputChannel& channel, Platform& platform, const ActiveData& ad) {
  channel.TooBigCancel = 1;
  platform.MessageBox(WindowLoopFailureMessage(ad.FilePath), MsgIcon::kWarning);
  channel.EndFailedRun();
  return false;
}

void FillWindowGrid(OutputChannel& channel, const PiThetaWindows& windows) {
  channel.Grid1.ColumnTitles = PiThetaGridTitles();
  channel.Grid1.Rows.reserve(windows.Rows.size());
  for (const PiThetaWindow& row : windows.Rows) channel.Grid1.Rows.push_back(PiThetaGridRow(row));
}

}  // namespace

bool RunDnaPolymorphism(ActiveData& ad, OutputChannel& channel, Platform& platform,
                        const DnaPolOptions& options, DnaPolRun* run) {
  if (auto refusal = ValidateDnaPolOptions(options, ad.NumSites, ad.GapsInWindow))
    return Refuse(channel, platform, *refusal);
  const int32_t from = options.RegionFrom;
  const int32_t to = options.RegionTo == 0 ? ad.NumSites : options.RegionTo;
  const SlidingWindowSpec window = DnaPolWindow(options, ad.NumSites, ad.GapsInWindow);

  channel.ResetOutputs();
  const bool missing_mode = options.MissingData && !options.SlidingOn;
  channel.SetBusy(true, missing_mode ? "Computing Pi (Pairwise Deletion)..."
                                     : "Computing Haplotype Diversity...");
  ad.Region = {from, to};
  ad.SelSites = ad.NumSites;
  ad.SelSet1 = options.SelSet1;
  SelectOneSet(ad, options.SelSet1);
  if (const int32_t minimum = MinimumSequences(kDnaPolymorphismCommand, ad.SelOutCount)) {
    channel.SetBusy(false);
    return Refuse(channel, platform,
                  {TooFewSequencesMessage(minimum), SetTooSmallReason(ad, options.SelSet1, ad.SelOutCount)});
  }

  PolyProgress progress;
  progress.Status = [&channel](const std::string& words) { channel.SetStatus(words); };
  progress.Gauge = [&channel](int percent) { channel.RaiseGauge(percent); };
  DnaPolRun local;
  DnaPolRun& out = run != nullptr ? *run : local;
  try {
    out.Result = ComputeDnaPolymorphism(ad, from, to, options, window, progress);
  } catch (const PolyFailure& e) {
    return Fail(channel, platform, e.what());
  } catch (const WindowFailure&) {
    return FailWindows(channel, platform, ad);
  }

  const int32_t net_sites = out.Result.Deletion ? NetSites(ad, from, to) : out.Result.Stats.NetSites;
  channel.ResultCode = kDnaPolymorphismCommand;
  ad.ResultCode = kDnaPolymorphismCommand;
  const std::string head = ReportHead(ad, net_sites);
  channel.HeaderBlock = head;
  channel.AppendText(head + DnaPolReportBody(out.Result, ad.GapsInSets));
  if (out.Result.Windows) {
    try {
      if (options.GcContent) {
        const GcWindows gc = ComputeGcWindows(ad, from, to, window);
        channel.Grid1.ColumnTitles = GcGridTitles();
        for (const GcWindow& row : gc.Rows) channel.Grid1.Rows.push_back(GcGridRow(row));
        out.Graph = GcGraph(gc);
      } else {
        FillWindowGrid(channel, *out.Result.Windows);
        out.Graph = PiThetaGraph(*out.Result.Windows);
      }
    } catch (const std::bad_alloc&) {
      return FailWindows(channel, platform, ad);
    }
    channel.SetGraph(out.Graph);
    channel.ShowResult(kResultAddGraph);
    channel.ShowResult(kResultTextAndGrid);
  } else {
    channel.ShowResult(kResultTextOnly);
  }
  channel.SetBusy(false);
  return true;
}

void WriteJson(JsonText& json, const DnaPolResult& r) {
  json.BeginObject();
  json.String("analysis", "DNA Polymorphism");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences);
  json.Bool("missing_data", r.MissingData);
  if (r.Deletion) {
    const PairwiseDeletion& d = *r.Deletion;
    json.BeginObject("pairwise_deletion");
    json.Integer("excluded_gap_sites", d.ExcludedGapSites);
    json.Integer("comparisons", d.Comparisons);
    json.Number("average_sites", d.AverageSites);
    json.Number("average_differences", d.AverageDifferences);
    json.Number("pi_pairwise", d.PiPairwise);
    json.Integer("sites_analyzed", d.SitesAnalyzed);
    json.Integer("segregating_sites", d.SegSites);
    json.Number("k", d.K).Number("pi", d.Pi);
    json.Number("theta_w_sequence", d.ThetaWSequence).Number("theta_w_site", d.ThetaWSite);
    json.EndObject();
    json.EndObject();
    return;
  }
  json.Integer("net_sites", r.Stats.NetSites);
  json.Integer("segregating_sites", r.Stats.SegSites);
  json.Number("mutations", r.Stats.Mutations);
  json.Integer("haplotypes", r.Haplotypes.Haplotypes);
  json.Number("hd", r.Haplotypes.Hd).Number("var_hd", r.Haplotypes.VarHd);
  json.Number("k", r.Stats.AvgDiffs).Number("pi", r.Stats.PiValue);
  if (r.SamplingVariance) json.Number("sampling_variance_pi", r.SamplingVariance->Variance);
  if (r.PiJC) json.Number("pi_jc", *r.PiJC);
  if (r.Variances) {
    const ThetaVariances& v = *r.Variances;
    json.BeginObject("variances");
    json.Number("theta_eta", v.ThetaEta).Number("theta_w", v.ThetaW);
    json.Number("var_theta_no_recombination", v.VarThetaNoRec);
    json.Number("var_theta_free_recombination", v.VarThetaFreeRec);
    json.Number("finite_sites_theta_pi", v.FiniteFromPi);
    json.Number("finite_sites_theta_s", v.FiniteFromS);
    json.Number("finite_sites_theta_eta", v.FiniteFromEta);
    json.Number("k", v.K);
    json.Number("stochastic_var_k_no_recombination", v.StochasticNoRec);
    json.Number("sampling_var_k_no_recombination", v.SamplingNoRec);
    json.Number("total_var_k_no_recombination", v.TotalNoRec);
    json.Number("stochastic_var_k_free_recombination", v.StochasticFreeRec);
    json.Number("sampling_var_k_free_recombination", v.SamplingFreeRec);
    json.Number("total_var_k_free_recombination", v.TotalFreeRec);
    json.Number("theta_w_sequence", v.ThetaWSequence);
    json.Number("var_theta_sequence_no_recombination", v.VnSequence);
    json.Number("var_theta_sequence_free_recombination", v.VfSequence);
    json.EndObject();
  }
  if (r.Windows) {
    const PiThetaWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength).Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const PiThetaWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Number("pi", row.Pi).Number("theta", row.Theta).Integer("s", row.SegSites);
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt

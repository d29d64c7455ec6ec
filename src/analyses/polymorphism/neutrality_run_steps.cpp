#include "analyses/polymorphism/neutrality_run_steps.h"

#include "core/site_scan.h"

#include <exception>

#include "analyses/polymorphism/sliding_window.h"

namespace ovelt {

bool RefuseRun(OutputChannel& channel, Platform& platform, const SelectionRefusal& refusal) {
  channel.SetBusy(false);
  platform.MessageBox(refusal.Text, MsgIcon::kWarning);
  platform.ExplainRefusal(refusal.Reason);
  channel.ReopenDialog = 1;
  return false;
}

bool FailRun(OutputChannel& channel, Platform& platform, const std::string& message) {
  platform.MessageBox(message, MsgIcon::kWarning);
  channel.RunFailed = 1;
  channel.SetBusy(false);
  return false;
}

bool ShowWindowTable(ActiveData& ad, OutputChannel& channel, Platform& platform,
                     const std::vector<std::string>& titles,
                     const std::function<std::vector<std::vector<std::string>>()>& rows,
                     const std::function<GraphData()>& make_graph, GraphData& graph) {
  try {
    channel.Grid1.ColumnTitles = titles;
    channel.Grid1.Rows = rows();
    graph = make_graph();
  } catch (const std::exception&) {
    channel.TooBigCancel = 1;
    platform.MessageBox(
        "Input data file: " + ad.FileName + "\n" + kOutputTooBig + "\n" + kIncreaseStep,
        MsgIcon::kWarning);
    channel.EndFailedRun();
    return false;
  }
  channel.SetGraph(graph);
  channel.ShowResult(kResultAddGraph);
  channel.ShowResult(kResultTextAndGrid);
  return true;
}

std::optional<NeutralityRunStart> StartNeutralityRun(ActiveData& ad, OutputChannel& channel,
                                                     Platform& platform,
                                                     const NeutralityOptions& options,
                                                     int16_t command) {
  if (auto refusal = ValidateNeutralityOptions(options, ad.NumSites, ad.GapsInWindow)) {
    RefuseRun(channel, platform, *refusal);
    return std::nullopt;
  }
  NeutralityRunStart start;
  start.From = options.RegionFrom;
  start.To = options.RegionTo == 0 ? ad.NumSites : options.RegionTo;
  if (options.SlidingOn)
    start.Window =
        NeutralityWindow(options.WindowLength, options.StepSize, ad.NumSites, ad.GapsInWindow);

  channel.ResetOutputs();
  channel.SetBusy(true, "Computing Haplotype Diversity...");
  ad.Region = {start.From, start.To};
  ad.SelSites = ad.NumSites;
  SelectOneSet(ad, options.SelSet1);
  if (const int32_t minimum = MinimumSequences(command, ad.SelOutCount)) {
    RefuseRun(channel, platform,
              {TooFewSequencesMessage(minimum), SetTooSmallReason(ad, options.SelSet1, ad.SelOutCount)});
    return std::nullopt;
  }
  return start;
}

}  // namespace ovelt

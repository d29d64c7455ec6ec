#include "analyses/polymorphism/size_change_run.h"

#include <exception>

#include "analyses/polymorphism/mismatch_expected.h"
#include "analyses/polymorphism/size_change_compute.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

void Refuse(OutputChannel& out, Platform& ui, const std::string& words,
            const std::string& reason = "") {
  ui.MessageBox(words, MsgIcon::kWarning);
  ui.ExplainRefusal(reason);
  out.ReopenDialog = 1;
  out.SetBusy(false);
}

// Why the values of the model were refused, where the box says only " Invalid Selection ".
std::string ModelValuesReason(const SizeChangeParameters& values) {
  if (values.ThetaInitial < 0.0) return "Theta initial must not be below 0.";
  if (values.Tau < 0.0) return "Tau must not be below 0.";
  return "";
}

void Fail(OutputChannel& out, Platform& ui, const std::string& words) {
  ui.MessageBox(words, MsgIcon::kWarning);
  out.RunFailed = 1;
  out.EndFailedRun();
  out.SetBusy(false);
}

}  // namespace

bool RunSizeChange(ActiveData& ad, OutputChannel& out, Platform& ui,
                   const SizeChangeOptions& given, SizeChangeRun* run) {
  SizeChangeOptions options = given;
  if (options.RegionTo == 0) options.RegionTo = ad.NumSites;
  if (const auto failure = OptionRangeRefusal(options)) {
    ui.MessageBox(failure->Text, MsgIcon::kWarning);
    ui.ExplainRefusal(failure->Reason);
    out.ReopenDialog = 1;
    return false;
  }
  const int32_t from = options.RegionFrom, to = options.RegionTo;
  if (!RegionIsValid(from, to, ad.NumSites)) {
    ui.MessageBox(kInvalidSelection, MsgIcon::kWarning);
    ui.ExplainRefusal(RegionFaultReason(from, to, ad.NumSites));
    out.ReopenDialog = 1;
    return false;
  }

  out.ResetOutputs();
  out.SetBusy(true, "Computing Pairwise Differences...");
  SelectOneSet(ad, options.SelSet1);
  ad.Region = {from, to};
  if (const int32_t minimum = MinimumSequences(kSizeChangeCode, ad.SelOutCount)) {
    Refuse(out, ui, TooFewSequencesMessage(minimum),
           SetTooSmallReason(ad, options.SelSet1, ad.SelOutCount));
    return false;
  }

  try {
    SizeChangeResult result =
        ObserveSizeChange(ad, from, to, [&out](int percent) { out.RaiseGauge(percent); });
    if (result.K <= 0.0) {
      const bool mismatch =
          options.AnalysisKind == kMismatchKind || options.AnalysisKind == kMismatchKindToo;
      Fail(out, ui,
           std::string(kNoPolymorphismsInData) + "\n" +
               (mismatch ? kCantComputeMismatch : kCantComputeSpectrum) +
               "\nInput data file: " + ad.FilePath);
      return false;
    }
    const SizeChangeParameters values = ResolveSizeChangeParameters(options, result);
    if (const auto failure = ValidateSizeChange(options, values)) {
      Refuse(out, ui, *failure, *failure == kInvalidSelection ? ModelValuesReason(values) : "");
      return false;
    }
    ExpectSizeChange(result, options, values);

    const std::string head = ReportHead(ad, result.NetSites);
    out.HeaderBlock = head;
    out.AppendText(head + SizeChangeReportText(result));
    out.ResultCode = kSizeChangeCode;
    SizeChangeGraph graph = SizeChangeGraphData(result);
    if (result.Table.X.empty()) {
      ui.MessageBox(SizeChangeTooBigMessage(result.Table.Rows), MsgIcon::kWarning);
      out.ShowResult(kResultTextOnly);
    } else {
      out.Grid1.ColumnTitles = SizeChangeColumnTitles(result);
      out.Grid1.Rows = SizeChangeGridRows(result);
      out.SetGridTextHead(SizeChangeGridTextHead(result));
      out.ShowResult(kResultTextAndGrid);
      out.SetGraph(SizeChangeChart(graph));
      out.ShowResult(kResultAddGraph);
    }
    out.SetBusy(false);
    if (run != nullptr) *run = {std::move(result), std::move(graph)};
    return true;
  } catch (const ExpansionError& e) {
    Fail(out, ui, e.what());
  } catch (const std::exception&) {
    Fail(out, ui, kSizeChangeFault);
  }
  return false;
}

}  // namespace ovelt

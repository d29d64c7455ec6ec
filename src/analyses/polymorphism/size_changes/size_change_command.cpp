#include "analyses/polymorphism/size_changes/size_change_command.h"

#include <exception>

#include "analyses/polymorphism/size_changes/mismatch_expected.h"
#include "analyses/polymorphism/size_changes/size_change_compute.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"

namespace ovelt {

namespace {

// Why the values of the model were refused, where the box says only " Invalid Selection ".
std::string ModelValuesReason(const SizeChangeParameters& values) {
  if (values.ThetaInitial < 0.0) return "Theta initial must not be below 0.";
  if (values.Tau < 0.0) return "Tau must not be below 0.";
  return "";
}

bool Mismatch(const SizeChangeOptions& options) {
  return options.AnalysisKind == kMismatchKind || options.AnalysisKind == kMismatchKindToo;
}

SizeChangeResult Compute(const Selection& sel, const SizeChangeOptions& options,
                         const Progress& progress) {
  try {
    SizeChangeResult result =
        ObserveSizeChange(sel, sel.Region.RegionFrom, sel.Region.RegionTo, progress.Gauge);
    if (result.K <= 0.0) {
      Fail(std::string(kNoPolymorphismsInData) + "\n" +
           (Mismatch(options) ? kCantComputeMismatch : kCantComputeSpectrum) +
           "\nInput data file: " + sel.data().FilePath);
    }
    const SizeChangeParameters values = ResolveSizeChangeParameters(options, result);
    if (const auto failure = ValidateSizeChange(options, values))
      Refuse(*failure, *failure == kInvalidSelection ? ModelValuesReason(values) : "");
    ExpectSizeChange(result, options, values);
    return result;
  } catch (const CommandFailure&) {
    throw;
  } catch (const ExpansionError& e) {
    Fail(e.what());
  } catch (const std::exception&) {
    Fail(kSizeChangeFault);
  }
}

CommandReport Report(const SizeChangeResult& result, const Selection& sel,
                     const SizeChangeOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.NetSites);
  report.Body = SizeChangeReportText(result);
  if (result.Table.X.empty()) {
    report.Notices.push_back({SizeChangeTooBigMessage(result.Table.Rows), MsgIcon::kWarning});
    report.ShowKinds = {kResultTextOnly};
    return report;
  }
  report.Grid1.ColumnTitles = SizeChangeColumnTitles(result);
  report.Grid1.Rows = SizeChangeGridRows(result);
  report.GridArray = "table";
  report.GridTextHead = SizeChangeGridTextHead(result);
  report.Graph = SizeChangeChart(SizeChangeGraphData(result));
  report.ShowKinds = {kResultTextAndGrid, kResultAddGraph};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> SizeChangeBinding() {
  AnalysisParts<SizeChangeOptions, SizeChangeResult> parts;
  parts.Validate = [](const SizeChangeOptions& options,
                      const ActiveData& data) -> std::optional<SelectionRefusal> {
    const int32_t to = options.RegionTo == 0 ? data.NumSites : options.RegionTo;
    if (!RegionIsValid(options.RegionFrom, to, data.NumSites))
      return SelectionRefusal{kInvalidSelection, RegionFaultReason(options.RegionFrom, to, data.NumSites)};
    return std::nullopt;
  };
  parts.BusyWords = [](const SizeChangeOptions&) { return "Computing Pairwise Differences..."; };
  parts.Select = [](const ActiveData& data, const SizeChangeOptions& options) {
    const int32_t to = options.RegionTo == 0 ? data.NumSites : options.RegionTo;
    return SelectOneSet(data, options.SelSet1, {options.RegionFrom, to});
  };
  parts.Compute = Compute;
  parts.Report = Report;
  parts.JsonName = "Population Size Changes";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt

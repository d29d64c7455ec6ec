#pragma once
// The binding of an analysis of the open data file, made from its parts:
//
//   Validate  (options, data) -> the refusal (words, why), or nothing  the dialog's checks on OK
//   BusyWords (options) -> the status line while it runs
//   Select    (data, options) -> Selection                            sets and region of the run
//   Compute   (selection, options, progress) -> Result                numbers only
//   Report    (result, selection, options) -> CommandReport           text, grids, chart
//
// and the name its JSON carries; the JSON itself is made from the Result's declared fields
// (`Visit`, see result_json.h). The range check of the option fields runs before Validate;
// a selection smaller than the command's minimum is refused with the usual words.

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "command/command_binding.h"
#include "command/command_failure.h"
#include "command/result_json.h"
#include "command/result_table.h"
#include "core/minimum_sequences.h"
#include "core/selection.h"

namespace ovelt {

// The sets and counts of the two selections of a run.
[[nodiscard]] inline UsedSequences UsedBy(const Selection& sel) {
  const ActiveData& ad = sel.data();
  auto name = [&ad](int16_t set) {
    return set > 0 && static_cast<size_t>(set) < ad.SequenceSets.size()
               ? ad.SequenceSets[static_cast<size_t>(set)].nombre()
               : std::string();
  };
  return {name(sel.SelSet1), sel.SelCount1, name(sel.SelSet2), sel.SelCount2};
}

inline constexpr const char* kNoDataFile = "There is no data file open.";

template <class Options, class Result>
struct AnalysisParts {
  std::function<std::optional<SelectionRefusal>(const Options&, const ActiveData&)> Validate;
  std::function<std::string(const Options&)> BusyWords;
  std::function<Selection(const ActiveData&, const Options&)> Select;
  std::function<Result(const Selection&, const Options&, const Progress&)> Compute;
  std::function<CommandReport(const Result&, const Selection&, const Options&)> Report;
  std::string JsonName;  // the "analysis" of its JSON
};

namespace analysis_detail {
template <class Result>
concept DeclaresFields = requires(const Result& r, JsonFields& v) {
  r.Visit(v);
};
}  // namespace analysis_detail

template <class Options, class Result>
class AnalysisBinding final : public CommandBinding {
  static_assert(analysis_detail::DeclaresFields<Result>,
                "the Result of an analysis declares its JSON fields with a member template Visit");

 public:
  explicit AnalysisBinding(AnalysisParts<Options, Result> parts) : parts_(std::move(parts)) {}

  [[nodiscard]] std::unique_ptr<CommandOptions> NewOptions() const override {
    return std::make_unique<TypedOptions<Options>>();
  }

  [[nodiscard]] CommandProduct Run(const RunContext& context,
                                   CommandOptions& any_options) const override {
    Options& options = static_cast<TypedOptions<Options>&>(any_options).Value;
    // The menus offer an analysis only while a file is open; a caller that forgot is told so.
    if (context.Data == nullptr) Fail(kNoDataFile);
    const ActiveData& data = *context.Data;
    if (auto refusal = OptionRangeRefusal(options)) Refuse(*refusal);
    if (parts_.Validate) {
      if (auto refusal = parts_.Validate(options, data)) Refuse(*refusal);
    }
    if (context.Begin) context.Begin(parts_.BusyWords ? parts_.BusyWords(options) : "");
    const Selection selection = parts_.Select(data, options);
    if (selection.SelOutCount < context.MinimumSequences)
      Refuse(TooFewSequencesMessage(context.MinimumSequences),
             SetTooSmallReason(data, selection.SelSet1, selection.SelOutCount));
    auto result =
        std::make_shared<const Result>(parts_.Compute(selection, options, context.Progress));
    CommandProduct product;
    product.Report = parts_.Report(*result, selection, options);
    if (!product.Report.GridArray.empty())
      product.Report.Grid1.Data = ResultArrayTable(*result, product.Report.GridArray);
    product.Region = selection.Region;
    product.Used = UsedBy(selection);
    if (context.WantJson) product.Json = ResultJson(parts_.JsonName, *result);
    product.Result = std::move(result);
    return product;
  }

 private:
  AnalysisParts<Options, Result> parts_;
};

template <class Options, class Result>
[[nodiscard]] std::shared_ptr<const CommandBinding> MakeAnalysis(
    AnalysisParts<Options, Result> parts) {
  return std::make_shared<AnalysisBinding<Options, Result>>(std::move(parts));
}

}  // namespace ovelt

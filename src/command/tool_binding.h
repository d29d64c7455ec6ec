#pragma once
// The binding of a command that needs no data file (the coalescent simulations, the tests of
// independence), made from its parts:
//
//   Validate  (options) -> the refusal, or nothing       the checks of the typed fields, in order
//   BusyWords (options) -> the status line while it runs
//   Compute   (options, progress) -> Result             numbers only
//   Report    (result, options) -> CommandReport        text
//   Notices   (options) -> words the dialog shows as soon as the options are picked
//
// and the name its JSON carries. The range check of the option fields runs before Validate.
// Result declares its JSON fields with `Visit` (command/result_json.h).

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "command/command_binding.h"
#include "command/command_failure.h"
#include "command/result_json.h"
#include "command/result_table.h"

namespace ovelt {

// A refusal of a tool: its words and the title of its box.
struct ToolRefusal {
  std::string Text;
  std::string Title = "Ovelt";
};

template <class Options, class Result>
struct ToolParts {
  std::function<std::optional<ToolRefusal>(const Options&)> Validate;
  std::function<std::string(const Options&)> BusyWords;
  std::function<Result(const Options&, const Progress&)> Compute;
  std::function<CommandReport(const Result&, const Options&)> Report;
  std::function<std::vector<std::string>(const Options&)> Notices;
  std::string JsonName;  // the "analysis" of its JSON
};

template <class Options, class Result>
class ToolBinding final : public CommandBinding {
 public:
  explicit ToolBinding(ToolParts<Options, Result> parts) : parts_(std::move(parts)) {}

  [[nodiscard]] std::unique_ptr<CommandOptions> NewOptions() const override {
    return std::make_unique<TypedOptions<Options>>();
  }
  [[nodiscard]] bool NeedsData() const override { return false; }
  [[nodiscard]] std::vector<std::string> ChoiceNotices(CommandOptions& options) const override {
    if (!parts_.Notices) return {};
    return parts_.Notices(static_cast<TypedOptions<Options>&>(options).Value);
  }

  [[nodiscard]] CommandProduct Run(const RunContext& context,
                                   CommandOptions& any_options) const override {
    Options& options = static_cast<TypedOptions<Options>&>(any_options).Value;
    if (auto refusal = OptionRangeRefusal(options)) Refuse(*refusal);
    if (parts_.Validate) {
      if (auto refusal = parts_.Validate(options)) RefuseTitled(refusal->Text, refusal->Title);
    }
    if (context.Begin) context.Begin(parts_.BusyWords ? parts_.BusyWords(options) : "");
    auto result = std::make_shared<const Result>(parts_.Compute(options, context.Progress));
    CommandProduct product;
    product.Report = parts_.Report(*result, options);
    if (!product.Report.GridArray.empty())
      product.Report.Grid1.Data = ResultArrayTable(*result, product.Report.GridArray);
    if (context.WantJson) product.Json = ResultJson(parts_.JsonName, *result);
    product.Result = std::move(result);
    return product;
  }

 private:
  ToolParts<Options, Result> parts_;
};

template <class Options, class Result>
[[nodiscard]] std::shared_ptr<const CommandBinding> MakeTool(ToolParts<Options, Result> parts) {
  return std::make_shared<ToolBinding<Options, Result>>(std::move(parts));
}

}  // namespace ovelt

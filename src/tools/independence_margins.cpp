#include "tools/independence_margins.h"

#include <optional>

#include "output/format_mask.h"
#include "tools/typed_value.h"

namespace ovelt {
namespace {

std::optional<double> WholeCell(const std::string& box) {
  const TypedValue typed = ReadTypedValue(box);
  if (typed.Status != TypedStatus::kNumber || !IsWholeNumber(typed.Value)) return std::nullopt;
  return typed.Value;
}

// The sum of the cells as a plain integer, or "" when one of them is no whole number.
std::string SumText(std::initializer_list<std::optional<double>> cells) {
  double sum = 0;
  for (const auto& cell : cells) {
    if (!cell) return "";
    sum += *cell;
  }
  return Format(sum, "0");
}

}  // namespace

IndependenceMargins TableMargins(const IndependenceOptions& boxes) {
  const auto a = WholeCell(boxes.A);
  const auto b = WholeCell(boxes.B);
  const auto c = WholeCell(boxes.C);
  const auto d = WholeCell(boxes.D);
  return {SumText({a, b}), SumText({c, d}), SumText({a, c}), SumText({b, d}),
          SumText({a, b, c, d})};
}

}  // namespace ovelt

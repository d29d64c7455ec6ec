#include "tools/independence_check.h"

#include <array>
#include <string>

#include "tools/typed_value.h"

namespace ovelt {
namespace {

ToolMessage Refusal(const char* text) { return {text, kInvalidSelectionTitle}; }

}  // namespace

std::optional<ToolMessage> F12Filtros(const IndependenceOptions& options, TwoByTwoTable& table) {
  const std::array<const std::string*, 4> boxes = {&options.A, &options.B, &options.C, &options.D};
  std::array<double, 4> cells{};
  for (size_t i = 0; i < boxes.size(); ++i) {
    const TypedValue typed = ReadTypedValue(*boxes[i]);
    if (typed.Status == TypedStatus::kMissing) return Refusal(kMissingDataText);
    if (typed.Status != TypedStatus::kNumber || !IsWholeNumber(typed.Value))
      return Refusal(kInvalidNumberText);
    cells[i] = typed.Value;
  }
  for (const double cell : cells)
    if (cell < 0) return Refusal(kNoNegativeCountText);
  // Summed as doubles: a typed cell may be far beyond the range of the counters.
  const double total = cells[0] + cells[1] + cells[2] + cells[3];
  if (total == 0) return Refusal(kSitesAboveZeroText);
  if (total < 2) return Refusal(kMinimumTwoSequencesText);
  if (total >= kIndependenceTotalLimit) return Refusal(kTotalBelowLimitText);

  const TwoByTwoTable typed{static_cast<int32_t>(cells[0]), static_cast<int32_t>(cells[1]),
                            static_cast<int32_t>(cells[2]), static_cast<int32_t>(cells[3])};
  if (typed.HasEmptyMargin()) return Refusal(kTableNotComputableText);
  table = typed;
  return std::nullopt;
}

}  // namespace ovelt

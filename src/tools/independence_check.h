#pragma once
// F12Filtros: the checks of the typed 2 x 2 table before any test runs. Each failure is one
// box titled " Invalid Selection ", and the dialog stays open.
//
// Order: each cell in turn must be present and a whole number; then no cell may be negative;
// the total must be above 0, then at least 2, then below 32767 (the log-factorial table of
// Fisher's test is a 16-bit count); last, no row or column may be empty.

#include <optional>

#include "tools/independence_options.h"
#include "tools/tool_message.h"
#include "tools/two_by_two_table.h"

namespace ovelt {

inline constexpr const char* kInvalidSelectionTitle = " Invalid Selection ";

inline constexpr const char* kMissingDataText = "Missing data";
inline constexpr const char* kInvalidNumberText = "Invalid number";
inline constexpr const char* kTableNotComputableText = "This table can not be computed";
inline constexpr const char* kMinimumTwoSequencesText = "The minimum number of sequences is two";
inline constexpr const char* kSitesAboveZeroText =
    "The total number of sites must be higher than 0";
inline constexpr const char* kTotalBelowLimitText = "The total must be lower than 32767";
inline constexpr const char* kNoNegativeCountText =
    "The minimum number of polymorphic sites or differences is 0";

// The largest total is one below this.
inline constexpr int32_t kIndependenceTotalLimit = 32767;

// Reads the four boxes into `table`; the refusal when the table cannot be tested.
[[nodiscard]] std::optional<ToolMessage> F12Filtros(const IndependenceOptions& options,
                                                    TwoByTwoTable& table);

}  // namespace ovelt

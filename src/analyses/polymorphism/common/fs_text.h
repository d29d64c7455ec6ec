#pragma once
// Fu's Fs as the reports print it: an Fs out of range shows the mark 1234567 in the mask of the
// line, as users of the program have always read it.

#include <optional>
#include <string>

#include "output/format_mask.h"

namespace ovelt {

inline constexpr double kFsOutOfRangeMark = 1234567.0;

[[nodiscard]] inline std::string FsText(const std::optional<double>& fs, const char* mask) {
  return Format(fs.value_or(kFsOutOfRangeMark), mask);
}

}  // namespace ovelt

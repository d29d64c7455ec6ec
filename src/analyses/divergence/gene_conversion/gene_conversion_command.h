#pragma once
// "Gene Conversion" as a command: two sequence sets over a region, the tracts and Psi, the grid
// of informative sites or Psi along a sliding window with its chart; and the JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

inline constexpr const char* kConversionSampleTooSmall =
    "At least three sequences must be included from one population, and five from the other, "
    "to identify gene conversion tracts and to estimate the parameter Psi.";

[[nodiscard]] std::shared_ptr<const CommandBinding> GeneConversionBinding();

}  // namespace ovelt

#pragma once
// "DNA Divergence Between Populations" as a command: two sequence sets over a region, the
// report of Pi, Dxy, Da and the kinds of mutation, the Jukes and Cantor values with their
// variances when asked, or Pi(1), Pi(2), Dxy and Da along a sliding window with their grid and
// chart; and the JSON.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

inline constexpr const char* kNoDivergenceSequences =
    "There are 0 included sequences. Can't compute the DNA Divegence between populations.";
inline constexpr const char* kOneDivergencePopulation =
    "There is only one population with included sequences. Can't compute the DNA Divegence "
    "between populations.";

[[nodiscard]] std::shared_ptr<const CommandBinding> DnaDivergenceBinding();

}  // namespace ovelt

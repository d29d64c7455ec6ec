#pragma once
// "Population Size Changes" as a command: region check, selection, observed values, parameters
// and their checks, expected values, report, grid and graph.

#include <memory>

#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "analyses/polymorphism/size_changes/size_change_report.h"
#include "analyses/polymorphism/size_changes/size_change_result.h"

#include "command/command_binding.h"

namespace ovelt {

inline const char* const kNoPolymorphismsInData = "No polymorphisms in the data !";
inline const char* const kCantComputeMismatch = "Can't compute the pairwise number of differences.";
inline const char* const kCantComputeSpectrum =
    "Can't compute the polymorphism frequency spectrum.";
inline const char* const kSizeChangeFault = "Error computing the Pairwise number of Differences";

[[nodiscard]] std::shared_ptr<const CommandBinding> SizeChangeBinding();

}  // namespace ovelt

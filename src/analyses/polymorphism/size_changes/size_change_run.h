#pragma once
// A run of "Population Size Changes" (command 15) on the open data file, in the order of every
// analysis: region check, clean output, selection, minimum of sequences, observed values,
// parameters and their checks, expected values, report, grid and graph. Messages go to the
// platform; a check that the dialog must answer sets `ReopenDialog`, a failure `RunFailed`.

#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "analyses/polymorphism/size_changes/size_change_report.h"
#include "analyses/polymorphism/size_changes/size_change_result.h"
#include "core/active_data.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

inline constexpr int16_t kSizeChangeCode = 15;
inline const char* const kNoPolymorphismsInData = "No polymorphisms in the data !";
inline const char* const kCantComputeMismatch = "Can't compute the pairwise number of differences.";
inline const char* const kCantComputeSpectrum =
    "Can't compute the polymorphism frequency spectrum.";
inline const char* const kSizeChangeFault = "Error computing the Pairwise number of Differences";

struct SizeChangeRun {
  SizeChangeResult Result;
  SizeChangeGraph Graph;
};

// True when the result stands in `out`; `run` receives the result and the graph data.
bool RunSizeChange(ActiveData& ad, OutputChannel& out, Platform& ui,
                   const SizeChangeOptions& options, SizeChangeRun* run = nullptr);

}  // namespace ovelt

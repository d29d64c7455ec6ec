#pragma once
// The options of the DNA Polymorphism command (its dialog, or the flags of
// `ovelt dna-polymorphism`), and their checks.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/command_options.h"

namespace ovelt {

struct DnaPolOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t SelSet1 = 0;
  bool ComputeJC = false;
  bool ComputeVarPi = false;
  bool MissingData = false;
  bool SlidingOn = false;
  // The G+C variant of the window: base composition in place of Pi, Theta and S.
  bool GcContent = false;
  // 0: the dialog's default for the file (see DefaultSlidingWindow).
  int32_t WindowLength = 0;
  int32_t StepSize = 0;

  template <class V>
  void Visit(V& v) {
    constexpr int64_t kMaxSites = std::numeric_limits<int32_t>::max();
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all included)"});
    v.Flag(ComputeJC, {"jc", "Compute Pi (Jukes and Cantor)", "Also print Pi(JC)"});
    v.Flag(ComputeVarPi,
           {"variance", "Compute Variance of Pi", "Also print the sampling variance of Pi"});
    v.Flag(MissingData, {"missing-data", "Nuc. Diversity w/missing data",
                         "Drop gaps and missing data only per pair and per site"});
    v.Flag(SlidingOn, {"sliding-window", "Sliding Window", "Pi, Theta and S along a window"});
    v.Flag(GcContent, {"gc-content", "G+C content",
                       "With the sliding window: G+C and A+T along the window instead"});
    v.Integer(WindowLength,
              {"window", "Window Length:",
               "Window length in sites (0: 100, or half the sites of a file under 100 sites)"},
              0, kMaxSites);
    v.Integer(StepSize,
              {"step", "Step Size:",
               "Step size in sites (0: 25, or an eighth of the sites of a file under 100)"},
              0, kMaxSites);
  }
};

// The window of the run: the options' length and step, the file's defaults for those left at
// 0, and the data setting `GapsInWindow`.
[[nodiscard]] SlidingWindowSpec DnaPolWindow(const DnaPolOptions& options, int32_t num_sites,
                                             bool gaps_in_window);

// The dialog's checks on OK, in their order: the window (when on), then the region (both ends
// in 1..num_sites, from not above to). The message of the first failure ("\n" between lines)
// and why.
[[nodiscard]] std::optional<SelectionRefusal> ValidateDnaPolOptions(const DnaPolOptions& options,
                                                                    int32_t num_sites,
                                                                    bool gaps_in_window);

// What the dialog's check boxes allow together: the missing-data mode excludes Pi(JC) and the
// variance of Pi (switching either side on clears the other), and the sliding window disables
// all three (the run then ignores them). Returns the options as the dialog leaves them after
// `changed` was switched on ("jc", "variance", "missing-data", "sliding-window").
[[nodiscard]] DnaPolOptions SwitchDnaPolOption(DnaPolOptions options, const std::string& changed);

}  // namespace ovelt

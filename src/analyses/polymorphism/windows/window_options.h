#pragma once
// The region and sliding-window fields that several dialogs share (the neutrality tests, DNA
// divergence): their declaration, the checks on OK in their order, and the region and window of
// a run. An options struct that uses them has `RegionFrom`, `RegionTo` (0: the last site),
// `SlidingOn`, `WindowLength` and `StepSize` (0: the file's default).

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/active_data.h"
#include "core/command_options.h"
#include "core/region_check.h"

namespace ovelt {

template <class V>
void VisitWindowFields(V& v, bool& sliding_on, int32_t& window_length, int32_t& step_size,
                       const char* statistic) {
  constexpr int64_t kMaxSites = std::numeric_limits<int32_t>::max();
  v.Flag(sliding_on,
         {"sliding-window", "Sliding Window", std::string(statistic) + " along a sliding window"});
  v.Integer(window_length,
            {"window", "Window Length:",
             "Window length in sites (0: 100, or half the sites of a file under 100 sites)"},
            0, kMaxSites);
  v.Integer(step_size,
            {"step", "Step Size:",
             "Step size in sites (0: 25, or an eighth of the sites of a file under 100)"},
            0, kMaxSites);
}

// The options' length and step, the file's defaults for those left at 0.
[[nodiscard]] SlidingWindowSpec ChosenWindow(int32_t window_length, int32_t step_size,
                                             int32_t num_sites, bool gaps_in_window);

// The region of a run: the options' range, 0 as its end standing for the last site.
[[nodiscard]] RegionSelection RunRegion(int32_t from, int32_t to, int32_t num_sites);

// The window of a run, when the sliding window is on.
template <class Options>
[[nodiscard]] std::optional<SlidingWindowSpec> RunWindow(const Options& options,
                                                         const ActiveData& data) {
  if (!options.SlidingOn) return std::nullopt;
  return ChosenWindow(options.WindowLength, options.StepSize, data.NumSites, data.GapsInWindow);
}

// The dialog's checks on OK, in their order: the ranges of the fields, the window (when on),
// then the region. The message of the first failure ("\n" between lines) and why.
template <class Options>
[[nodiscard]] std::optional<SelectionRefusal> ValidateRegionAndWindow(Options options,
                                                                      int32_t num_sites,
                                                                      bool gaps_in_window) {
  if (auto failure = OptionRangeRefusal(options)) return failure;
  const int32_t to = options.RegionTo == 0 ? num_sites : options.RegionTo;
  if (options.SlidingOn) {
    const SlidingWindowSpec geometry =
        ChosenWindow(options.WindowLength, options.StepSize, num_sites, gaps_in_window);
    if (auto failure = SlidingWindowRefusal(geometry, options.RegionFrom, to, num_sites))
      return failure;
  }
  if (!RegionIsValid(options.RegionFrom, to, num_sites))
    return SelectionRefusal{kInvalidSelection,
                            RegionFaultReason(options.RegionFrom, to, num_sites)};
  return std::nullopt;
}

}  // namespace ovelt

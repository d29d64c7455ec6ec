#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"

#include "core/region_check.h"

namespace ovelt {

SlidingWindowSpec DnaPolWindow(const DnaPolOptions& options, int32_t num_sites,
                               bool gaps_in_window) {
  SlidingWindowSpec geometry = DefaultSlidingWindow(num_sites, gaps_in_window);
  if (options.WindowLength != 0) geometry.WindowLength = options.WindowLength;
  if (options.StepSize != 0) geometry.StepSize = options.StepSize;
  return geometry;
}

std::optional<SelectionRefusal> ValidateDnaPolOptions(const DnaPolOptions& options,
                                                      int32_t num_sites, bool gaps_in_window) {
  DnaPolOptions checked = options;
  if (auto failure = OptionRangeRefusal(checked)) return failure;
  const int32_t to = options.RegionTo == 0 ? num_sites : options.RegionTo;
  if (options.SlidingOn) {
    const SlidingWindowSpec geometry = DnaPolWindow(options, num_sites, gaps_in_window);
    if (auto failure = SlidingWindowRefusal(geometry, options.RegionFrom, to, num_sites))
      return failure;
  }
  if (!RegionIsValid(options.RegionFrom, to, num_sites))
    return SelectionRefusal{kInvalidSelection,
                            RegionFaultReason(options.RegionFrom, to, num_sites)};
  return std::nullopt;
}

DnaPolOptions SwitchDnaPolOption(DnaPolOptions options, const std::string& changed) {
  if (changed == "missing-data") {
    options.MissingData = true;
    options.ComputeJC = options.ComputeVarPi = false;
  } else if (changed == "jc" || changed == "variance") {
    (changed == "jc" ? options.ComputeJC : options.ComputeVarPi) = true;
    options.MissingData = false;
  } else if (changed == "sliding-window") {
    // The three are disabled, not cleared: the run ignores them while the window is on.
    options.SlidingOn = true;
  }
  return options;
}

}  // namespace ovelt

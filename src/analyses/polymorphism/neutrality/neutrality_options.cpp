#include "analyses/polymorphism/neutrality/neutrality_options.h"

#include "core/region_check.h"

namespace ovelt {
namespace {

template <class Options>
std::optional<SelectionRefusal> Validate(Options& options, int32_t num_sites,
                                         bool gaps_in_window) {
  if (auto failure = OptionRangeRefusal(options)) return failure;
  const int32_t to = options.RegionTo == 0 ? num_sites : options.RegionTo;
  if (options.SlidingOn) {
    const SlidingWindowSpec geometry =
        NeutralityWindow(options.WindowLength, options.StepSize, num_sites, gaps_in_window);
    if (auto failure = SlidingWindowRefusal(geometry, options.RegionFrom, to, num_sites))
      return failure;
  }
  if (!RegionIsValid(options.RegionFrom, to, num_sites))
    return SelectionRefusal{kInvalidSelection,
                            RegionFaultReason(options.RegionFrom, to, num_sites)};
  return std::nullopt;
}

}  // namespace

SlidingWindowSpec NeutralityWindow(int32_t window_length, int32_t step_size, int32_t num_sites,
                                   bool gaps_in_window) {
  SlidingWindowSpec geometry = DefaultSlidingWindow(num_sites, gaps_in_window);
  if (window_length != 0) geometry.WindowLength = window_length;
  if (step_size != 0) geometry.StepSize = step_size;
  return geometry;
}

std::optional<SelectionRefusal> ValidateNeutralityOptions(NeutralityOptions options,
                                                          int32_t num_sites, bool gaps_in_window) {
  return Validate(options, num_sites, gaps_in_window);
}

std::optional<SelectionRefusal> ValidateFuLiOutgroupOptions(FuLiOutgroupOptions options,
                                                            int32_t num_sites,
                                                            bool gaps_in_window) {
  // The outgroup is another set than the intraspecific data: against itself the test means
  // nothing.
  if (options.SelSet1 == options.SelSet2) return SelectionRefusal{kSameSetTwice, ""};
  return Validate(options, num_sites, gaps_in_window);
}

}  // namespace ovelt

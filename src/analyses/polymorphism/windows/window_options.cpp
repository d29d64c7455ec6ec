#include "analyses/polymorphism/windows/window_options.h"

namespace ovelt {

SlidingWindowSpec ChosenWindow(int32_t window_length, int32_t step_size, int32_t num_sites,
                               bool gaps_in_window) {
  SlidingWindowSpec geometry = DefaultSlidingWindow(num_sites, gaps_in_window);
  if (window_length != 0) geometry.WindowLength = window_length;
  if (step_size != 0) geometry.StepSize = step_size;
  return geometry;
}

RegionSelection RunRegion(int32_t from, int32_t to, int32_t num_sites) {
  return {from, to == 0 ? num_sites : to};
}

}  // namespace ovelt

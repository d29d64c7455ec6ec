#include "analyses/polymorphism/neutrality/neutrality_options.h"

namespace ovelt {

std::optional<SelectionRefusal> ValidateNeutralityOptions(NeutralityOptions options,
                                                          int32_t num_sites, bool gaps_in_window) {
  return ValidateRegionAndWindow(options, num_sites, gaps_in_window);
}

std::optional<SelectionRefusal> ValidateFuLiOutgroupOptions(FuLiOutgroupOptions options,
                                                            int32_t num_sites,
                                                            bool gaps_in_window) {
  // The outgroup is another set than the intraspecific data: against itself the test means
  // nothing.
  if (options.SelSet1 == options.SelSet2) return SelectionRefusal{kSameSetTwice, ""};
  return ValidateRegionAndWindow(options, num_sites, gaps_in_window);
}

}  // namespace ovelt

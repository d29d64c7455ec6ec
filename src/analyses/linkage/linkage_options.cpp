#include "analyses/linkage/linkage_options.h"

namespace ovelt {

std::optional<SelectionRefusal> ValidateLinkageOptions(const LinkageOptions& options,
                                                       int32_t num_sites) {
  const int32_t to = options.RegionTo == 0 ? num_sites : options.RegionTo;
  if (!RegionIsValid(options.RegionFrom, to, num_sites))
    return SelectionRefusal{kInvalidSelection,
                            RegionFaultReason(options.RegionFrom, to, num_sites)};
  return std::nullopt;
}

}  // namespace ovelt

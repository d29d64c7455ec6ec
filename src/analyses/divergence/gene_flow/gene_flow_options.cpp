#include "analyses/divergence/gene_flow/gene_flow_options.h"

#include "core/region_check.h"

namespace ovelt {

std::optional<SelectionRefusal> ValidateGeneFlowOptions(const GeneFlowOptions& options,
                                                        int32_t num_sites) {
  if (options.Permutation) {
    if (options.Replicates > kMaxFlowReplicates)
      return SelectionRefusal{"In the present version the maximum number of replicates is 50000",
                              ""};
    if (options.Replicates < 1)
      return SelectionRefusal{"The minimum number of simulation replicates is 1", ""};
  }
  const int32_t to = options.RegionTo == 0 ? num_sites : options.RegionTo;
  if (!RegionIsValid(options.RegionFrom, to, num_sites))
    return SelectionRefusal{kInvalidSelection,
                            RegionFaultReason(options.RegionFrom, to, num_sites)};
  return std::nullopt;
}

}  // namespace ovelt

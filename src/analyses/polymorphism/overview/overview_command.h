#pragma once
// The overviews as commands: the intraspecific data at a glance (every main polymorphism
// statistic and neutrality test of one selection), and the same statistics for every domain
// and every sequence set as one table.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

inline const char* const kOverviewFailure = "Error computing OVE";
inline const char* const kMultiDomainFailure = "Error computing OVE in Domains.";
inline const char* const kDomainHaplotypeFailure =
    "Error computing the Haplotype Diversity in Domains";

[[nodiscard]] std::shared_ptr<const CommandBinding> IntraspecificBinding();
[[nodiscard]] std::shared_ptr<const CommandBinding> MultiDomainBinding();

}  // namespace ovelt

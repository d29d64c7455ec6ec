#pragma once
// Runs of the overview commands on the open data file: "DNA Polymorphism Analysis" (24), one
// report of the selection, and "Multiblock Analysis" (33), the table of every domain and every
// sequence set. Messages go to the platform; a check that the dialog must answer sets
// `ReopenDialog`, a failure `RunFailed`.

#include <vector>

#include "analyses/polymorphism/overview/multidomain_table.h"
#include "analyses/polymorphism/overview/overview_options.h"
#include "analyses/polymorphism/overview/overview_stats.h"
#include "core/active_data.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

inline const char* const kOverviewFailure = "Error computing OVE";
inline const char* const kMultiDomainFailure = "Error computing OVE in Domains.";
inline const char* const kDomainHaplotypeFailure =
    "Error computing the Haplotype Diversity in Domains";

// True when the report stands in `out`; `stats` receives the numbers.
bool RunOverview(ActiveData& ad, OutputChannel& out, Platform& ui, const OverviewOptions& options,
                 OverviewStats* stats = nullptr);

// True when the table stands in `out`. Domains given in the options replace the file's
// (`ad.Domains`); with none at all the region is the one domain. `rows` receives the rows.
bool RunMultiDomain(ActiveData& ad, OutputChannel& out, Platform& ui,
                    const MultiDomainOptions& options, std::vector<MultiDomainRow>* rows = nullptr);

}  // namespace ovelt

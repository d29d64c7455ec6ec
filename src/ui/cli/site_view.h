#pragma once
// `ovelt sites`: the site-scanning layer made visible. A selection (all included sequences or
// one sequence set) over a region, with the report head, the counts of each site class, the
// segregating sites, the extra mutations, the sum of per-site diversities, the largest group of
// identical sequences, and one grid row per site.

#include <cstdint>
#include <string>

namespace CLI {
class App;
}

namespace ovelt {

class Workbench;

struct SiteViewOptions {
  std::string set;       // name of a sequence set; empty: all included sequences
  int32_t from = 0;      // 0: first site
  int32_t to = 0;        // 0: last site
};

void AddSiteViewOptions(CLI::App& app, SiteViewOptions& options);

// Runs the view on the open file; false (message shown) when the selection is refused.
bool RunSiteView(Workbench& wb, const SiteViewOptions& options);

}  // namespace ovelt

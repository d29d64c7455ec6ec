#pragma once
// The options of "Linkage Disequilibrium" (`Form9`, or the flags of
// `ovelt linkage-disequilibrium`): the region, the two tests of each pair and which sites enter.

#include <cstdint>
#include <optional>

#include "core/command_options.h"

namespace ovelt {

struct LinkageOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  bool Fisher = false;
  bool ChiSquare = false;
  // Off: only the parsimony-informative sites; on: every polymorphic site with two variants.
  bool AllSites = false;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.Flag(Fisher, {"fisher", "Fisher's exact test", "Fisher's exact test of each pair of sites"});
    v.Flag(ChiSquare,
           {"chi-square", "Chi-square test", "Chi-square test of each pair of sites"});
    v.Flag(AllSites, {"all-sites", "All polymorphic sites (singletons included)",
                      "Analyse every polymorphic site with two variants, not only the "
                      "parsimony-informative ones"});
  }
};

// The tests asked for as one code: 0 neither, 1 Fisher only, 2 chi-square only, 3 both.
[[nodiscard]] constexpr int TestCode(bool fisher, bool chi_square) {
  return (fisher ? 1 : 0) + (chi_square ? 2 : 0);
}

// The dialog's check on OK: the region, first site not above the last, both within the sites.
[[nodiscard]] std::optional<SelectionRefusal> ValidateLinkageOptions(const LinkageOptions& options,
                                                                     int32_t num_sites);

}  // namespace ovelt

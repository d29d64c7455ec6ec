#pragma once
// The mutations of two populations sorted into four kinds: fixed differences, mutations private
// to population 1 or 2 (polymorphic there, monomorphic in the other) and shared ones. A site
// with k variants holds k - 1 mutations; how they split follows the variants of each population
// and of the two together.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

struct MutationKinds {
  int32_t Fixed = 0;
  int32_t Private1 = 0;
  int32_t Private2 = 0;
  int32_t Shared = 0;

  // The mutations of the two populations together.
  [[nodiscard]] int32_t Total() const { return Fixed + Private1 + Private2 + Shared; }
  bool operator==(const MutationKinds&) const = default;
};

// What the count needs of one site with no gap in either population.
struct SiteVariants {
  int16_t Class1 = 0, Class2 = 0;  // site classes 0 to 4
  double H1 = 0.0, H2 = 0.0;       // gene diversities
  double Dxy = 0.0;                // `SiteDxy`
  int32_t Union = 0;               // variants of the two populations together
};

// Mutations of a site of class `site_class` within one population: a singleton site (class 1)
// one, classes 2 to 4 their class minus one; nothing for 0 and 5.
[[nodiscard]] int32_t MutationsOfClass(int16_t site_class);

// Adds the mutations of one site to `kinds`.
void AddSiteMutationKinds(const SiteVariants& site, MutationKinds& kinds);

// Distinct symbols at `site` over both selections of `sel`.
[[nodiscard]] int32_t VariantsOfBoth(const Selection& sel, int32_t site);

// Over `from`..`to` of the two classified selections of `sel`, skipping sites of class 5 in
// either; `site_dxy` from `BuildSiteDxy`.
[[nodiscard]] MutationKinds CountMutationKinds(const Selection& sel,
                                               const std::vector<double>& site_dxy, int32_t from,
                                               int32_t to);

}  // namespace ovelt

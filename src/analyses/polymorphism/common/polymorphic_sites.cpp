#include "analyses/polymorphism/common/polymorphic_sites.h"

namespace ovelt {

std::vector<int32_t> PolymorphicSites(const Selection& sel, int32_t from, int32_t to) {
  std::vector<int32_t> sites;
  for (int32_t site = from; site <= to; ++site) {
    const int16_t c = sel.SelSiteClass1[static_cast<size_t>(site)];
    if (c != kMonomorphic && c != kGapOrMissing) sites.push_back(site);
  }
  return sites;
}

}  // namespace ovelt

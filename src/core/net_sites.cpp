#include "core/net_sites.h"

#include <algorithm>

namespace ovelt {

namespace {

// The part of `first`..`last` that the per-site arrays of the first selection cover.
struct SiteRange {
  int32_t first;
  int32_t last;
};

SiteRange Clamp(const Selection& sel, int32_t first, int32_t last) {
  const auto covered = std::min<int32_t>(static_cast<int32_t>(sel.SelSiteClass1.size()),
                                         static_cast<int32_t>(sel.SelSiteDiversity1.size())) -
                       1;
  return {std::max(first, 1), std::min(last, covered)};
}

}  // namespace

NetSiteCount CountNetSites(const Selection& sel, int32_t first, int32_t last) {
  NetSiteCount count;
  const SiteRange range = Clamp(sel, first, last);
  int32_t net = std::max(range.last - range.first + 1, 0);
  for (int32_t site = range.first; site <= range.last; ++site) {
    const auto s = static_cast<size_t>(site);
    if (sel.SelSiteClass1[s] == kGapOrMissing) {
      --net;
      continue;
    }
    const double diversity = sel.SelSiteDiversity1[s];
    count.SumSiteDiversity += diversity;
    if (diversity > 0.0) ++count.SegSites;
  }
  count.Net = net;
  return count;
}

int32_t ExtraMutations(const Selection& sel, int32_t first, int32_t last) {
  const SiteRange range = Clamp(sel, first, last);
  int32_t extra = 0;
  for (int32_t site = range.first; site <= range.last; ++site) {
    const int16_t site_class = sel.SelSiteClass1[static_cast<size_t>(site)];
    if (site_class == kThreeVariants) extra += 1;
    if (site_class == kFourVariants) extra += 2;
  }
  return extra;
}

int32_t FixedGaps(const Selection& sel) {
  const SiteRange range = Clamp(sel, sel.Region.RegionFrom, sel.Region.RegionTo);
  const int32_t seqs = std::min(sel.SelCount1, sel.SelMatrix1.seqs());
  const int32_t last = std::min(range.last, sel.SelMatrix1.sites());
  int32_t fixed = 0;
  for (int32_t site = range.first; site <= last; ++site) {
    const auto s = static_cast<size_t>(site);
    if (sel.SelSiteClass1[s] != kGapOrMissing) continue;
    // The stored value of a class-5 site is its count of "-": all gaps is settled at once.
    if (sel.SelSiteDiversity1[s] == static_cast<double>(sel.SelCount1)) {
      ++fixed;
      continue;
    }
    int32_t empty_cells = 0;
    for (int32_t seq = 1; seq <= seqs; ++seq) {
      const char cell = sel.SelMatrix1.at(site, seq);
      if (cell != '-' && cell != '?') break;
      ++empty_cells;
    }
    if (empty_cells == sel.SelCount1) ++fixed;
  }
  return fixed;
}

double DiversityPerSite(double sum_site_diversity, int32_t net_sites) {
  return net_sites > 0 ? sum_site_diversity / static_cast<double>(net_sites) : 0.0;
}

}  // namespace ovelt

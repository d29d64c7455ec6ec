#include "core/coding_map.h"

#include <algorithm>

#include "core/coding_flag.h"
#include "core/region_check.h"

namespace ovelt {

namespace {

void CheckRegion(ActiveData& ad, int32_t from, int32_t to) {
  if (!RegionIsValid(from, to, ad.NumSites)) throw InvalidRegion();
  ad.CodonPosition.resize(static_cast<size_t>(ad.NumSites) + 1, 0);
}

bool Write(ActiveData& ad, int32_t site, int16_t position) {
  int16_t& cell = ad.CodonPosition[static_cast<size_t>(site)];
  if (cell == position) return false;
  cell = position;
  return true;
}

}  // namespace

int32_t BuscaUltimoCodSitio(const ActiveData& ad) {
  const auto last = std::min<int32_t>(ad.NumSites,
                                      static_cast<int32_t>(ad.CodonPosition.size()) - 1);
  for (int32_t site = last; site >= 1; --site) {
    if (ad.CodonPosition[static_cast<size_t>(site)] > 0) return site;
  }
  return 0;
}

bool AssignNonCodingRegion(ActiveData& ad, int32_t from, int32_t to) {
  CheckRegion(ad, from, to);
  bool changed = false;
  for (int32_t site = from; site <= to; ++site) changed |= Write(ad, site, 0);
  ad.LastCodingSite = BuscaUltimoCodSitio(ad);
  return changed;
}

bool AssignCodingRegion(ActiveData& ad, int32_t from, int32_t to, int first_position) {
  CheckRegion(ad, from, to);
  if (first_position < 1 || first_position > 3) first_position = 1;
  ad.LastCodingSite = std::max(ad.LastCodingSite, to);
  bool changed = false;
  auto position = static_cast<int16_t>(first_position);
  for (int32_t site = from; site <= to; ++site) {
    changed |= Write(ad, site, position);
    position = static_cast<int16_t>(position % 3 + 1);
  }
  return changed;
}

void LeaveForm14(ActiveData& ad, bool changed) {
  if (ad.Format.GeneticCodeIndex == 0) ad.Format.GeneticCodeIndex = 1;
  ad.Region.RegionFrom = 1;
  ad.Region.RegionTo = ad.NumSites;
  if (changed) {
    ad.Format.CodingAssigned = 1;
    RebuildCodingTables(ad);
  }
}

void ResetCodingState(ActiveData& ad) {
  ad.CodonPosition.assign(static_cast<size_t>(ad.NumSites) + 1, 0);
  ad.Format.CodingAssigned = -1;
  ad.Format.GeneticCodeIndex = 1;
  ad.GeneticCode = BuildGeneticCode(1);
  ad.CodingFlag.assign(static_cast<size_t>(ad.NumSites) + 1, kNoncodingFlag);
  ad.CodingFlag[0] = "";
  ad.LastCodingSite = 0;
}

}  // namespace ovelt

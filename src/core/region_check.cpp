#include "core/region_check.h"

namespace ovelt {

std::string RegionFaultReason(int32_t from, int32_t to, int32_t sel_sites) {
  const std::string region = "The region " + std::to_string(from) + "-" + std::to_string(to);
  const std::string last = std::to_string(sel_sites);
  if (to < from) return region + " ends before it begins (the sites run from 1 to " + last + ").";
  return region + " is not within the sites, which run from 1 to " + last + ".";
}

}  // namespace ovelt

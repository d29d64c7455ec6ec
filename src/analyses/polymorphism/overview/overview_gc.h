#pragma once
// G+C content of the first selection over the sites of a region without gaps or missing data:
// the share of G and C among the nucleotides of those sites, over the sites that no coding
// region covers, over the coding sites, and over all. A part with no such site has no value
// (`Applicable` false).

#include <cstdint>

#include "core/selection.h"

namespace ovelt {

struct GcShare {
  bool Applicable = false;
  double Content = 0.0;  // (G + C) / nucleotides
  double Sites = 0.0;    // sites counted
};

struct GcContent {
  GcShare NonCoding;
  GcShare Coding;
  GcShare Total;
};

[[nodiscard]] GcContent ComputeGcContent(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt

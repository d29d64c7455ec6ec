#pragma once
// The options of "Gene Conversion" (`Form11b`, or the flags of `ovelt gene-conversion`): the two
// populations, the region, and Psi along a sliding window.

#include <cstdint>

#include "analyses/polymorphism/windows/window_options.h"
#include "core/command_options.h"

namespace ovelt {

struct GeneConversionOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t SelSet1 = 1, SelSet2 = 2;      // the first two sets
  bool SlidingOn = false;
  int32_t WindowLength = 0;
  int32_t StepSize = 0;

  template <class V>
  void Visit(V& v) {
    v.SetIndex(SelSet1, {"set", "Population #1:", "Sequence set of population 1"});
    v.SetIndex(SelSet2, {"set2", "Population #2:", "Sequence set of population 2"});
    v.Region(RegionFrom, RegionTo);
    VisitWindowFields(v, SlidingOn, WindowLength, StepSize, "Psi");
  }
};

}  // namespace ovelt

#pragma once
// The options of "DNA Divergence Between Populations" (`Form11b` in its divergence layout, or
// the flags of `ovelt dna-divergence`): the two populations, the region, the Jukes and Cantor
// values with their variances, and the sliding window. Sites with a gap in either population
// are always left out.

#include <cstdint>
#include <optional>

#include "analyses/polymorphism/windows/window_options.h"
#include "core/command_options.h"

namespace ovelt {

struct DnaDivergenceOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t SelSet1 = 1, SelSet2 = 2;      // the first two sets
  bool ComputeVariances = false;
  bool SlidingOn = false;
  int32_t WindowLength = 0;
  int32_t StepSize = 0;

  template <class V>
  void Visit(V& v) {
    v.SetIndex(SelSet1, {"set", "Population #1:", "Sequence set of population 1"});
    v.SetIndex(SelSet2, {"set2", "Population #2:", "Sequence set of population 2"});
    v.Region(RegionFrom, RegionTo);
    v.Flag(ComputeVariances,
           {"variances", "Compute Variances of Pi, Dxy, Da)",
            "Pi, Dxy and Da with the Jukes and Cantor correction and their standard deviations "
            "(not along a sliding window)"});
    VisitWindowFields(v, SlidingOn, WindowLength, StepSize, "Pi(1), Pi(2), Dxy and Da");
  }
};

}  // namespace ovelt

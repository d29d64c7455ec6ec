#pragma once
// The options of the Recombination command (its dialog, or the flags of
// `ovelt recombination`): the region only; the estimators use every included sequence.

#include <cstdint>

#include "core/command_options.h"

namespace ovelt {

struct RecombinationOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
  }
};

}  // namespace ovelt

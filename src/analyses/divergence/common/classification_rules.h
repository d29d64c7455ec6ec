#pragma once
// How a codon classification settles its choices. Every analysis takes the pathway (or network)
// with the fewest nonsynonymous changes; ties are broken at random with the caller's generator,
// except under the rules of the McDonald and Kreitman test and the Trelmo shuttle, which are
// repeatable: two codons of a species that differ at two positions count one nonsynonymous change
// at each without walking the pathways, tied networks of three codons take the second one, and
// tied pathways take the choice of `TiedPathways` (the outgroup rule of that test) or, without
// one, the first tied pathway.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "analyses/divergence/common/tie_breaker.h"

namespace ovelt {

struct ClassificationRules {
  // The repeatable rules of the McDonald and Kreitman test (and of the Trelmo shuttle).
  bool PairedSpecies = false;
  // The sequences are a second selection of a run: an unresolved complex position at the
  // closing pass is an internal fault ("Error Quino#27"), counted in the result.
  bool SecondSelection = false;
  // The generator of the random tie-breaks; needed unless `PairedSpecies`.
  TieBreaker* Ties = nullptr;
  // Under `PairedSpecies`: the index (0-based) of the pathway chosen among the tied ones, given
  // the two codons and the value patterns of the tied pathways. Empty: the first.
  std::function<size_t(int a, int b, const std::vector<std::array<int8_t, 3>>& tied)>
      TiedPathways;
};

}  // namespace ovelt

#pragma once
// The ancestral material of a chromosome in the coalescent with recombination (Hudson 1983):
// the stretches of sites it still carries whose genealogy has not yet reached its root, each
// with the node, in the tree of those sites, that it is ancestral to.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

// Sites `Begin` .. `End`, both included and counted from 0, and the tree node at their base.
// A segment's ends always fall on the ends of stretches between breakpoints, and its
// `Descendant` is the same node in the tree of every stretch it spans.
struct Segment {
  int16_t Begin = 0;
  int16_t End = 0;
  int16_t Descendant = 0;
};

// One chromosome alive in the ancestral process. Its segments are ordered by site and do not
// overlap; the vector keeps its storage when the chromosome's slot is reused.
struct AncestralChromosome {
  int16_t Deme = 0;  // one panmictic population: always 0
  std::vector<Segment> Segments;

  [[nodiscard]] int32_t SegmentCount() const { return static_cast<int32_t>(Segments.size()); }
  // Links between adjacent sites that a recombination can still cut: from the first site of the
  // first segment to the last site of the last one, gaps included.
  [[nodiscard]] int32_t Links() const { return Segments.back().End - Segments.front().Begin; }
};

}  // namespace ovelt

#pragma once
// Plain, slow versions of the tree walks, kept as the reference the fast tables are compared
// with: two walkers climbing from a pair of sequences to where they meet, and the walk up from
// a sequence to decide whether it descends from a node.

#include <cstdint>

#include "coalescent/genealogy.h"

namespace ovelt::testing {

// The walkers step both to their parents, then move the one with the smaller node number up
// until they meet, adding the mutations of every node they leave; the meeting node is never
// added.
inline int32_t WalkedDifferences(const Genealogy& g, int32_t i, int32_t j) {
  int32_t d = g.BranchMutations[static_cast<size_t>(i)] + g.BranchMutations[static_cast<size_t>(j)];
  int32_t a = g.Parent[static_cast<size_t>(i)];
  int32_t b = g.Parent[static_cast<size_t>(j)];
  while (a != b) {
    if (a < b) {
      d += g.BranchMutations[static_cast<size_t>(a)];
      a = g.Parent[static_cast<size_t>(a)];
    } else {
      d += g.BranchMutations[static_cast<size_t>(b)];
      b = g.Parent[static_cast<size_t>(b)];
    }
  }
  return d;
}

inline bool DescendsFrom(const Genealogy& g, int32_t s, int32_t node) {
  int32_t at = s;
  while (at < node) at = g.Parent[static_cast<size_t>(at)];
  return at == node;
}

}  // namespace ovelt::testing

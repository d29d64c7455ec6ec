#pragma once
// The sampled sequences below each node of a genealogy, as one run of a single ordering of the
// sequences: the leaves of node v are Order[Start[v] .. Start[v] + Size[v] - 1]. Built by joining
// the lists of the two children at each coalescence, so every node's leaves stay adjacent.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "coalescent/genealogy.h"

namespace ovelt {

struct LeafOrder {
  std::vector<int16_t> Order;  // the sequences, 0 .. n-1, in an order of the tree
  std::vector<int32_t> Start;  // by node
  std::vector<int32_t> Size;   // by node: number of sampled sequences below it
  std::vector<int32_t> Head;   // working lists of the construction
  std::vector<int32_t> Tail;
  std::vector<int32_t> Next;

  void Allocate(int32_t n);
  void Build(const Genealogy& g);
};

}  // namespace ovelt

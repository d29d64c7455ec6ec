#include "coalescent/haplotype_from_tree.h"

#include <algorithm>
#include <stdexcept>

namespace ovelt {

void HaplotypeMatrixFromTree(const Genealogy& g, const LeafOrder& leaves, HaplotypeMatrix& m) {
  int32_t columns = 0;
  for (int32_t i = 0; i < g.Root(); ++i) columns += g.BranchMutations[static_cast<size_t>(i)];
  m.Reset(g.n, columns);
  int32_t c = 0;
  for (int32_t i = 0; i < g.Root(); ++i) {
    const auto node = static_cast<size_t>(i);
    const int32_t count = g.BranchMutations[node];
    if (count <= 0) continue;
    const int16_t* below = leaves.Order.data() + leaves.Start[node];
    const int32_t size = leaves.Size[node];
    for (int32_t col = c; col < c + count; ++col) {
      int16_t* cells = m.Column(col);
      for (int32_t x = 0; x < size; ++x) cells[below[x]] = 1;
    }
    c += count;
  }
}

void ColumnsInRegionOrder(HaplotypeMatrix& m, int32_t sites, CoalescentRandom& random,
                          ColumnOrderScratch& scratch) {
  const int32_t columns = m.Columns();
  if (columns < 2) return;
  if (columns > sites)
    throw std::runtime_error("There are more segregating sites than sites in the region");
  auto& position = scratch.Positions;
  position.resize(static_cast<size_t>(columns));
  scratch.Taken.assign(static_cast<size_t>(sites) + 1, 0);
  for (int32_t j = 0; j < columns; ++j) {
    int32_t p;
    do {
      p = static_cast<int32_t>(random.U() * sites) + 1;
    } while (scratch.Taken[static_cast<size_t>(p)] != 0);
    scratch.Taken[static_cast<size_t>(p)] = 1;
    position[static_cast<size_t>(j)] = p;
  }
  // The sites are distinct, so any sort gives the one ascending order.
  auto& order = scratch.Columns;
  order.resize(static_cast<size_t>(columns));
  for (int32_t j = 0; j < columns; ++j) order[static_cast<size_t>(j)] = j;
  std::sort(order.begin(), order.end(), [&](int32_t a, int32_t b) {
    return position[static_cast<size_t>(a)] < position[static_cast<size_t>(b)];
  });
  const int32_t rows = m.Rows();
  const auto total = static_cast<size_t>(rows) * static_cast<size_t>(columns);
  scratch.Cells.resize(total);
  std::copy(m.Column(0), m.Column(0) + total, scratch.Cells.begin());
  for (int32_t j = 0; j < columns; ++j) {
    const int16_t* from = scratch.Cells.data() +
                          static_cast<size_t>(order[static_cast<size_t>(j)]) * static_cast<size_t>(rows);
    std::copy(from, from + rows, m.Column(j));
  }
}

void MajorFlip(const HaplotypeMatrix& m, std::vector<int16_t>& flips) {
  const int32_t n = m.Rows();
  flips.assign(static_cast<size_t>(m.Columns()), 0);
  for (int32_t j = 0; j < m.Columns(); ++j) {
    const int16_t* cells = m.Column(j);
    int32_t ones = 0;
    for (int32_t r = 0; r < n; ++r) ones += cells[r];
    flips[static_cast<size_t>(j)] = 2 * ones > n ? 1 : 0;
  }
}

}  // namespace ovelt

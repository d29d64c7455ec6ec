#pragma once
// The 0/1 haplotype matrix of a genealogy with its mutations, and the column handling that the
// statistics on the matrix need: a random order of sites along the region and the flag of the
// columns whose mutant is the majority.

#include <cstdint>
#include <vector>

#include "coalescent/coalescent_random.h"
#include "coalescent/genealogy.h"
#include "coalescent/haplotype_matrix.h"
#include "coalescent/leaf_order.h"

namespace ovelt {

// n rows by S columns (S = the sum of the branch mutations). Columns go by node number; the m
// mutations of one branch are m adjacent identical columns, 1 in the sequences below the branch.
void HaplotypeMatrixFromTree(const Genealogy& g, const LeafOrder& leaves, HaplotypeMatrix& m);

// Working storage of ColumnsInRegionOrder, kept between replicates.
struct ColumnOrderScratch {
  std::vector<int32_t> Positions;
  std::vector<int32_t> Columns;
  std::vector<char> Taken;
  std::vector<int16_t> Cells;
};

// Gives each column a distinct random site of a region of `sites` sites (1 .. sites), drawn in
// column order and redrawn while the site is taken, then puts the columns in the order of their
// sites. Nothing is drawn for fewer than two columns. More columns than sites cannot be placed
// and throws std::runtime_error.
void ColumnsInRegionOrder(HaplotypeMatrix& m, int32_t sites, CoalescentRandom& random,
                          ColumnOrderScratch& scratch);

// flips[j] = 1 when the mutant of column j is carried by more than half of the sequences.
void MajorFlip(const HaplotypeMatrix& m, std::vector<int16_t>& flips);

}  // namespace ovelt

#pragma once
// Wall's (1999) B and Q over the columns of a 0/1 haplotype matrix, in their order. Two
// adjacent columns are congruent when they split the sequences the same way: the number of
// sequences with equal values in both is n or 0. B = congruent adjacent pairs / (S - 1);
// Q = (congruent pairs + runs of consecutive congruent pairs) / S. With S < 2 neither is
// determined.

#include <optional>

#include "stats/binary_columns.h"

namespace ovelt {

struct WallBQ {
  std::optional<double> B;
  std::optional<double> Q;
};

[[nodiscard]] WallBQ WallFromColumns(const BinaryColumnsView& m);

}  // namespace ovelt

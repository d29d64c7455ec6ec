#pragma once
// The nucleotide distance of two sites: the sites between them, j - i, less the gap and missing
// cells of the gapped sites (class 5) from i to j divided by the number of sequences, so that a
// stretch where some sequences lack data counts for the share of sequences that have it. Rounded
// to the nearest integer, a half to the even one.

#include <cstdint>
#include <vector>

#include "core/seq_matrix.h"

namespace ovelt {

class PairDistance {
 public:
  // Over the sites `from`..`to` of `matrix`, sequences 1..n; `site_class` indexed by site.
  PairDistance(const SeqMatrix& matrix, int32_t n, const std::vector<int16_t>& site_class,
               int32_t from, int32_t to);

  // Sites i <= j of the range.
  [[nodiscard]] int32_t operator()(int32_t i, int32_t j) const;

 private:
  int32_t from_ = 1;
  int32_t n_ = 1;
  // missing_[k]: gap and missing cells of the gapped sites from..from + k - 1.
  std::vector<int64_t> missing_;
};

}  // namespace ovelt

#pragma once
// Haplotypes of the first selection over a region and the haplotype (gene) diversity with its
// sampling variance (Nei 1987, equations 8.4 and 8.12):
//   Hd = (1 - sum p^2) n / (n - 1),
//   VarHd = 2 / (n (n - 1)) [2 (n - 2) (sum p^3 - (sum p^2)^2) + sum p^2 - (sum p^2)^2],
// p the frequency of each haplotype among the n sequences. Two sequences are one haplotype when
// they carry the same nucleotide at every site of class 1 to 4; sites with gaps or missing data
// do not tell them apart. One haplotype gives Hd = 0; n = 2 gives finite values.

#include <cstdint>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "core/selection.h"

namespace ovelt {

struct HaplotypeStats {
  int32_t Haplotypes = 0;  // h
  double Hd = 0.0;
  double VarHd = 0.0;
  // Sequences of each haplotype, in the order of the haplotypes' first sequences.
  std::vector<int32_t> Members;
  // Haplotype (1..h) of each sequence of the selection, 1-based, index 0 unused.
  std::vector<int32_t> HaplotypeOf;
};

// Over from..to of the first selection (`SelOutCount` sequences). The gauge rises from 0 to 100
// as the sequences are sorted into haplotypes.
[[nodiscard]] HaplotypeStats ComputeHaplotypes(const Selection& sel, int32_t from, int32_t to,
                                               const PolyGauge& gauge = {});

// Hd and VarHd of `stats.Members` among `n` sequences (n of 2 or more).
void HaplotypeDiversity(HaplotypeStats& stats, int32_t n);

}  // namespace ovelt

#pragma once
// `SiteDxy`: per site, the share of the sequence pairs taken one from each population that carry
// different symbols there (the per-site term of Nei's Dxy, Nei 1987, eq. 10.20). The common
// table of the divergence analyses, read beside the two selections' classes and diversities.
//  - both populations monomorphic: 1 when the first sequences of the two differ, else 0;
//  - a gap or missing cell in either population (class 5 in either): 0;
//  - otherwise the differing pairs divided by n1 x n2.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// The value of one site of two populations, given their classes there.
[[nodiscard]] double SiteDxyValue(const SeqMatrix& pop1, int32_t n1, int16_t class1,
                                  const SeqMatrix& pop2, int32_t n2, int16_t class2,
                                  int32_t site);

// Every site of the file (index 0 unused) for the first and second selections of `sel`, which
// must both be classified (`ClassifyFirst`, `ClassifySecond`).
[[nodiscard]] std::vector<double> BuildSiteDxy(const Selection& sel);

}  // namespace ovelt

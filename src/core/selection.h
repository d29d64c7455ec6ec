#pragma once
// The selection of one run: the sequences and region an analysis works on, as a value that the
// selection step returns and the analysis reads. A set index above 0 takes the included members
// of that sequence set, in the set's order, straight from the file layer; an index of 0 or below
// takes all included sequences, as copies of the included layer that share their cells (no
// sequence is copied until someone writes to it). Nothing of a selection is written back into
// the active data.

#include <cstdint>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

struct Selection {
  // The file and included layers and the settings the selection was made from; they must
  // outlive it.
  const ActiveData* Data = nullptr;
  RegionSelection Region;
  int16_t SelSet1 = 0, SelSet2 = 0, SelSet3 = 0;
  int32_t SelCount1 = 0, SelCount2 = 0, SelCount3 = 0;
  SeqMatrix SelMatrix1, SelMatrix2, SelMatrix3;
  std::vector<std::string> SelNames1{""}, SelNames2{""}, SelNames3{""};
  // File sequence numbers of the first selection (index 0 unused); the report head lists them
  // when not all candidates are used.
  std::vector<int32_t> SelSeqNumbers1{0};
  std::vector<int16_t> SelSiteClass1{0}, SelSiteClass2{0};
  std::vector<double> SelSiteDiversity1{0.0}, SelSiteDiversity2{0.0};
  // Sequences in the selection that the running analysis is bound by (its minimum is checked
  // against this count).
  int32_t SelOutCount = 0;
  // Sites of the working copy; the file's sites.
  int32_t SelSites = 0;

  [[nodiscard]] const ActiveData& data() const { return *Data; }
};

// The first selection with its classes and diversities over `region`.
[[nodiscard]] Selection SelectOneSet(const ActiveData& ad, int16_t set, RegionSelection region);

// First and second selections, matrices and names only (`ClassifySecond` adds what the second
// needs).
[[nodiscard]] Selection SelectTwoSets(const ActiveData& ad, int16_t set1, int16_t set2,
                                      RegionSelection region);

// The first selection, matrix and names only.
[[nodiscard]] Selection SelectFirstSetOnly(const ActiveData& ad, int16_t set1,
                                           RegionSelection region);

// Adds the third selection: `SelMatrix3`, `SelNames3`, `SelCount3`.
void AddThirdSet(Selection& selection, int16_t set3);

// Site classes and diversities of the first (second) selection, from the included layer's.
void ClassifyFirst(Selection& selection);
void ClassifySecond(Selection& selection);

}  // namespace ovelt

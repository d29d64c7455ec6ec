#pragma once
// The sequences whose codon columns an analysis reads: a matrix, how many of its sequences are
// in use, and their site classes (core/site_class.h). The divergence family reads the same
// columns for the full file, the included sequences, the first selection of a run or a second
// one, so each of those is a `CodonColumns` made by one of the functions below.

#include <cstdint>
#include <vector>

#include "analyses/divergence/common/codon_walk.h"
#include "core/active_data.h"
#include "core/selection.h"

namespace ovelt {

struct CodonColumns {
  const SeqMatrix* Matrix = nullptr;
  int32_t Seqs = 0;
  const std::vector<int16_t>* SiteClass = nullptr;  // per site, index 0 unused

  [[nodiscard]] int16_t ClassAt(int32_t site) const {
    return (*SiteClass)[static_cast<size_t>(site)];
  }
  // A codon site holds a gap or missing datum in one of the sequences.
  [[nodiscard]] bool HasGap(const CodonSites& codon) const;
  // None of the three sites varies.
  [[nodiscard]] bool Monomorphic(const CodonSites& codon) const;
  // The codon index (1..64) of sequence `seq` (1..Seqs), 0 when a cell is not a nucleotide.
  [[nodiscard]] int CodonOf(const CodonSites& codon, int32_t seq) const;
  // The codon of every sequence into `codons` (index 0 unused).
  void CodonsOf(const CodonSites& codon, std::vector<uint8_t>& codons) const;
};

// The file's sequences (`RawMatrix`, `RawSiteClass`).
[[nodiscard]] CodonColumns FileColumns(const ActiveData& ad);
// The included sequences (`IncMatrix`, `SiteClass`).
[[nodiscard]] CodonColumns IncludedColumns(const ActiveData& ad);
// The first selection of a run.
[[nodiscard]] CodonColumns FirstColumns(const Selection& sel);
// The second selection of a run; its classes must have been made (`ClassifySecond`).
[[nodiscard]] CodonColumns SecondColumns(const Selection& sel);

}  // namespace ovelt

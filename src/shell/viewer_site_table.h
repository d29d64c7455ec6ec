#pragma once
// The per-site facts of the data viewer, taken once when the viewer opens: the site class of
// the included sequences and a few marks (parsimony informative, codon, codon changes, codon
// with gaps, complex codon). The viewer draws every cell from the matrix and these tables, so
// nothing is stored per cell; building them reads each cell at most once, sequence by sequence.
//
// Parsimony informative (Fitch 1977): at least two nucleotides each carried by two or more
// sequences. Two-variant sites are so by their class (2); three- and four-variant sites are
// counted. Codons are the complete codons of the coding map (`CodingFlag`); a codon with a site
// of class 5 is a codon with gaps; the marks of the other codons follow viewer_codons.h.

#include <cstdint>
#include <vector>

#include "core/active_data.h"
#include "shell/viewer_texts.h"

namespace ovelt {

enum ViewerSiteMark : uint8_t {
  kViewerInformative = 1,
  kViewerCodon = 2,
  kViewerSynonymous = 4,
  kViewerNonsynonymous = 8,
  kViewerCodonWithGaps = 16,
  kViewerComplexCodon = 32,
};

struct ViewerSiteTable {
  std::vector<int16_t> SiteClass{0};     // 1..sites, as `SiteClass` of the included layer
  std::vector<uint8_t> Marks{0};         // 1..sites, ViewerSiteMark bits
  std::vector<int16_t> CodonPosition{0}; // 1..sites
  int16_t CodingAssigned = 0;

  [[nodiscard]] int32_t Sites() const { return static_cast<int32_t>(SiteClass.size()) - 1; }
  [[nodiscard]] bool Has(int32_t site, ViewerSiteMark mark) const {
    return (Marks[static_cast<size_t>(site)] & mark) != 0;
  }
};

// Builds the table from `IncMatrix`, `SiteClass`, `CodonPosition`, `CodingFlag` and the genetic
// code of `ad`.
[[nodiscard]] ViewerSiteTable BuildViewerSiteTable(const ActiveData& ad);

// Whether `site` is highlighted under `choice`.
[[nodiscard]] bool ViewerHighlights(const ViewerSiteTable& table, ViewerHighlight choice,
                                    int32_t site);

}  // namespace ovelt

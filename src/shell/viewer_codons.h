#pragma once
// What the data viewer marks on a codon whose sequences carry more than one codon (no gaps).
//
// Complex (ambiguous) codons are those whose evolutionary paths cannot be told apart: five or
// more distinct codons; three codons differing at all three positions, or at two positions
// where no single-step pair joins them; four codons at three positions, or at two positions
// unless they form a square of one-step changes under a nuclear code.
//
// Otherwise the distinct codons are joined by their one-step pairs, and codons still apart are
// joined through the pair whose shortest pathway (Nei and Gojobori 1986) has the fewest
// nonsynonymous steps. A step between codons of the same amino acid is synonymous; a step into
// or out of a stop intermediate counts as nonsynonymous. This is a display aid: the
// substitution analyses resolve each codon for themselves.

#include <cstdint>

#include "core/genetic_code.h"

namespace ovelt {

struct CodonChangeMarks {
  bool Complex = false;
  bool Synonymous = false;
  bool Nonsynonymous = false;
};

// `distinct` holds bit (index - 1) for each codon index 1..64 seen at the codon. One codon or
// none gives no marks.
[[nodiscard]] CodonChangeMarks MarkCodonChanges(uint64_t distinct, const GeneticCodeTable& code);

}  // namespace ovelt

#pragma once
// Synonymous and nonsynonymous mutations of the coding sites of a region, counted where they
// can be told without a path through intermediate codons: in each complete codon (positions 1,
// 2 and 3 in coding order, no gap or missing datum in the first selection) with exactly one
// segregating position, each nucleotide other than the most common one at that position is one
// mutation, synonymous when the codon it makes translates (genetic code in use) to the same
// amino acid as the most common codon. Codons with two or three segregating positions are left
// out. With no coding site there is no count (none; the reports print "n.a.").

#include <cstdint>
#include <optional>

#include "core/selection.h"

namespace ovelt {

struct CodonChanges {
  int32_t Synonymous = 0;
  int32_t Nonsynonymous = 0;
};

[[nodiscard]] std::optional<CodonChanges> CountCodonChanges(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt

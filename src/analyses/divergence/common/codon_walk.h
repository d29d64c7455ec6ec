#pragma once
// Walking the codons of a region. From the first site of codon position 1, a codon takes the
// next site whose position is the one expected (1, then 2, then 3); any other site is passed
// over, so that an intron between two positions of a codon is skipped. A codon still open at the
// end of the region is dropped. Every analysis of the divergence family walks codons this way.

#include <array>
#include <cstdint>
#include <vector>

namespace ovelt {

// The sites of codon positions 1, 2 and 3 of one complete codon.
using CodonSites = std::array<int32_t, 3>;

// The complete codons of `from`..`to` (both included) under `codon_position` (per site, index 0
// unused, 0 noncoding). Sites beyond the array read as noncoding.
[[nodiscard]] std::vector<CodonSites> CompleteCodons(const std::vector<int16_t>& codon_position,
                                                     int32_t from, int32_t to);

}  // namespace ovelt

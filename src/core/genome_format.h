#pragma once
// The attributes of the nucleotide sequence format dialog (chromosomal location, genomic state,
// nucleotide type).

#include <cstdint>
#include <string>

namespace ovelt {

inline const std::string kDiploidQuestion = "Are you sure that the genome is Diploid ?";

// A prokaryotic, mitochondrial or chloroplast genome (location 5 or above) declared diploid
// (state 0) asks for confirmation before OK is taken.
[[nodiscard]] constexpr bool NeedsDiploidConfirmation(int16_t location, int16_t genome_state) {
  return location >= 5 && genome_state == 0;
}

}  // namespace ovelt

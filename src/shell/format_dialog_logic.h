#pragma once
// OK of the "Nucleotide Sequence Format" dialog: the nucleotide type, the genomic state and the
// chromosomal location of the data, written together once the user confirmed them.

#include <cstdint>
#include <optional>
#include <string>

#include "core/active_data.h"

namespace ovelt {

struct GenomeFormatChoice {
  int16_t NucleotideType = 0;       // 0 DNA, 1 RNA
  int16_t GenomeState = 0;          // 0 diploid, 1 haploid
  int16_t ChromosomalLocation = 0;  // 0..7
};

// What the dialog offers when it opens: the values of the current file.
[[nodiscard]] GenomeFormatChoice CurrentGenomeFormat(const ActiveData& ad);

// The confirmation asked before a prokaryotic, mitochondrial or chloroplast genome is taken as
// diploid: "Are you sure that the genome is Diploid ?" and the file line; nullopt when no
// confirmation is needed.
[[nodiscard]] std::optional<std::string> DiploidQuestion(const ActiveData& ad,
                                                         const GenomeFormatChoice& choice);

// Stores the choice. Values out of range are refused (false) and nothing changes. `redraw` is
// set when the nucleotide type changed, which a data viewer shows.
bool ApplyGenomeFormat(ActiveData& ad, const GenomeFormatChoice& choice, bool& redraw);

}  // namespace ovelt

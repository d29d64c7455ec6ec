#pragma once
// What the genetic code dialog shows: the ten codes by name, and the 64 codons of the code the
// user is looking at, laid out as the classic table (first base by rows, second by columns,
// third within each block), each with its amino acid's three-letter name.

#include <cstdint>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/genetic_code.h"

namespace ovelt {

inline const std::string kCurrentGeneticCodeLabel = "Current Genetic Code:";

// "U", "C", "A", "G": the labels of the table's rows and columns, for the ranks 1 to 4.
[[nodiscard]] const std::vector<std::string>& CodonBaseLabels();

// The frame title: "Genetic Code for: " and the file's name.
[[nodiscard]] std::string GeneticCodeFrameTitle(const ActiveData& ad);

// The dialog texts of codes 1..10, in index order (the combo's entries).
[[nodiscard]] std::vector<std::string> GeneticCodeChoices();

// The cell of the codon with ranks `first`, `second`, `third` (1..4, T = U, C, A, G) in `table`:
// the codon written with U, two blanks, and the three-letter name ("UUU  Phe", "UAA  Stop").
// "" for a rank outside 1..4.
[[nodiscard]] std::string CodonGridCell(const GeneticCodeTable& table, int first, int second,
                                        int third);

}  // namespace ovelt

#pragma once
// `CodonFoldTable`: for each codon and codon position, a class digit that says which share of
// the site is synonymous. Of the three other bases at the position, those that make a stop
// codon count as `stops`, those that keep the amino acid (and make no stop) as `syn`; the site's
// synonymous fraction is syn / (3 - stops), so changes into stop codons are left out of the
// denominator:
//
//   stops 0: syn 0, 1, 2, 3 give "0", "2", "3", "4"   (0, 1/3, 2/3, 1)
//   stops 1: syn 0, 1, 2    give "0", "1", "4"        (0, 1/2, 1)
//   stops 2: syn 0, 1       give "0", "4"             (0, 1)
//   stops 3:                 "0"
//
// Built from the genetic code in use each time a synonymous count starts.

#include <array>

#include "core/genetic_code.h"

namespace ovelt {

struct CodonFoldTable {
  // Digit[codon][position - 1], codon 1..64 (index 0 unused); '0' .. '4'.
  std::array<std::array<char, 3>, 65> Digit{};

  [[nodiscard]] char At(int codon, int position) const {
    return Digit[static_cast<size_t>(codon)][static_cast<size_t>(position - 1)];
  }
};

[[nodiscard]] CodonFoldTable BuildCodonFoldTable(const GeneticCodeTable& code);

// The class digit of `stops` and `syn` changes, from the table above.
[[nodiscard]] char FoldDigit(int stops, int syn);

// The synonymous fraction of a class digit: "0" 0, "1" 1/2, "2" 1/3, "3" 2/3, "4" 1.
[[nodiscard]] double SynonymousFraction(char digit);

}  // namespace ovelt

#include "analyses/divergence/common/codon_fold_table.h"

#include "analyses/divergence/common/codon_index.h"

namespace ovelt {

char FoldDigit(int stops, int syn) {
  switch (stops) {
    case 0: {
      constexpr std::array<char, 4> kDigits{'0', '2', '3', '4'};
      return syn >= 0 && syn <= 3 ? kDigits[static_cast<size_t>(syn)] : '0';
    }
    case 1:
      return syn == 1 ? '1' : syn == 2 ? '4' : '0';
    case 2:
      return syn == 1 ? '4' : '0';
    default:
      return '0';
  }
}

double SynonymousFraction(char digit) {
  switch (digit) {
    case '1':
      return 1.0 / 2.0;
    case '2':
      return 1.0 / 3.0;
    case '3':
      return 2.0 / 3.0;
    case '4':
      return 1.0;
    default:
      return 0.0;
  }
}

CodonFoldTable BuildCodonFoldTable(const GeneticCodeTable& code) {
  CodonFoldTable table;
  table.Digit[0] = {'0', '0', '0'};
  for (int codon = 1; codon <= kCodonCount; ++codon) {
    const char amino_acid = code.Translate(codon);
    for (int position = 1; position <= 3; ++position) {
      int stops = 0;
      int syn = 0;
      for (int base = 1; base <= 4; ++base) {
        if (base == CodonBase(codon, position)) continue;
        const int mutant = WithBase(codon, position, base);
        if (code.IsStop(mutant)) {
          ++stops;
        } else if (code.Translate(mutant) == amino_acid) {
          ++syn;
        }
      }
      table.Digit[static_cast<size_t>(codon)][static_cast<size_t>(position - 1)] =
          FoldDigit(stops, syn);
    }
  }
  return table;
}

}  // namespace ovelt

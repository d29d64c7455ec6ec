#include "analyses/divergence/gene_conversion/nucleotide_counts.h"

namespace ovelt {

int NucleotideIndex(char cell) {
  switch (cell) {
    case 'A':
    case 'a':
      return 0;
    case 'T':
    case 't':
    case 'U':
    case 'u':
      return 1;
    case 'C':
    case 'c':
      return 2;
    case 'G':
    case 'g':
      return 3;
    default:
      return -1;
  }
}

NucleotideCounts CountNucleotides(const SeqMatrix& matrix, int32_t seqs, int32_t site) {
  NucleotideCounts counts{};
  for (int32_t s = 1; s <= seqs; ++s) {
    const int j = NucleotideIndex(matrix.at(site, s));
    if (j >= 0) ++counts[static_cast<size_t>(j)];
  }
  return counts;
}

}  // namespace ovelt

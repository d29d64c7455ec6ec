#pragma once
// Synonymous and nonsynonymous differences between two codons (Nei and Gojobori 1986): every
// pathway between them weighs the same. A pathway through a stop codon (an intermediate, not
// an end) is dropped from the count of pathways; on the others each step between codons of the
// same amino acid is one synonymous difference. The synonymous count f is the mean over the
// pathways kept (0 when none is kept), the nonsynonymous count d - f.

#include <array>

#include "core/genetic_code.h"

namespace ovelt {

struct NeiGojoboriCount {
  int Differences = 0;      // d, differing positions
  double Synonymous = 0.0;  // f
  [[nodiscard]] double Nonsynonymous() const { return Differences - Synonymous; }
};

// Walks the pathways of one pair.
[[nodiscard]] NeiGojoboriCount NeiGojoboriPair(int a, int b, const GeneticCodeTable& code);

// The counts of every pair of codons under one code, walked once, for kernels that meet the same
// pairs again and again.
class NeiGojoboriTable {
 public:
  explicit NeiGojoboriTable(const GeneticCodeTable& code);
  [[nodiscard]] const NeiGojoboriCount& At(int a, int b) const {
    return counts_[static_cast<size_t>(a * 65 + b)];
  }

 private:
  std::array<NeiGojoboriCount, 65 * 65> counts_{};
};

}  // namespace ovelt

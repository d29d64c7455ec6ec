#pragma once
// The evolutionary pathways between two codons: one for each order in which the differing
// positions can change, listed with the first position changed first and then by position order
// ((1, 2, 3), (1, 3, 2), (2, 1, 3), (2, 3, 1), (3, 1, 2), (3, 2, 1) for three differences).

#include <array>
#include <vector>

#include "core/genetic_code.h"

namespace ovelt {

struct CodonPathway {
  int Steps = 0;                 // differing positions, 1..3
  std::array<int, 3> Order{};    // the position (1..3) changed at each step
  std::array<int, 4> Codons{};   // Codons[0] the start, Codons[Steps] the end

  // Whether an intermediate codon (neither end) is a stop codon.
  [[nodiscard]] bool ThroughStop(const GeneticCodeTable& code) const;
  // Whether step `k` (1..Steps) joins two codons of the same amino acid.
  [[nodiscard]] bool SynonymousStep(int k, const GeneticCodeTable& code) const;
};

// All pathways from codon `a` to codon `b` (1..64); none when they are equal.
[[nodiscard]] std::vector<CodonPathway> PathwaysBetween(int a, int b);

}  // namespace ovelt

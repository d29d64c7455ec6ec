#pragma once
// Codons as numbers 1..64 (T = 1, C = 2, A = 3, G = 4; index = (b1 - 1) * 16 + (b2 - 1) * 4 +
// b3, as core/genetic_code.h numbers them), and the few operations on them that the pathway
// walks need: the base at one position, a codon with one base replaced, the positions at which
// two codons differ.

#include <array>
#include <cstdint>

namespace ovelt {

inline constexpr int kCodonCount = 64;

// Rank 1..4 of the base at `position` (1..3) of codon `codon` (1..64).
[[nodiscard]] constexpr int CodonBase(int codon, int position) {
  const int zero_based = codon - 1;
  switch (position) {
    case 1:
      return zero_based / 16 + 1;
    case 2:
      return zero_based / 4 % 4 + 1;
    default:
      return zero_based % 4 + 1;
  }
}

// Codon `codon` with rank `base` at `position`.
[[nodiscard]] constexpr int WithBase(int codon, int position, int base) {
  std::array<int, 3> b{CodonBase(codon, 1), CodonBase(codon, 2), CodonBase(codon, 3)};
  b[static_cast<size_t>(position - 1)] = base;
  return (b[0] - 1) * 16 + (b[1] - 1) * 4 + b[2];
}

// Which positions differ (index 0..2 for positions 1..3), and how many.
struct CodonDifference {
  std::array<bool, 3> At{};
  int Count = 0;
};

[[nodiscard]] constexpr CodonDifference DifferenceOf(int a, int b) {
  CodonDifference d;
  for (int p = 1; p <= 3; ++p) {
    if (CodonBase(a, p) != CodonBase(b, p)) {
      d.At[static_cast<size_t>(p - 1)] = true;
      ++d.Count;
    }
  }
  return d;
}

}  // namespace ovelt

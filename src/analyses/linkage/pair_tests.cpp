#include "analyses/linkage/pair_tests.h"

#include <array>
#include <cmath>

#include "stats/chi_square_tail.h"

namespace ovelt {

int FisherStars(double p) {
  if (p < 0.001) return 3;
  if (p < 0.01) return 2;
  if (p < 0.05) return 1;
  return 0;
}

int ChiSquareStars(double chi_square) {
  // Compared as 32-bit floats, so that a value printed as a bound takes the bound's mark.
  const auto x = static_cast<float>(chi_square);
  if (x >= 10.828f) return 3;
  if (x >= 6.635f) return 2;
  if (x > 3.841f) return 1;
  return 0;
}

std::string StarMark(int stars) {
  switch (stars) {
    case 3:
      return "***";
    case 2:
      return "** ";
    case 1:
      return "*  ";
    default:
      return "   ";
  }
}

double PairChiSquare(const HaplotypePairCounts& h, int32_t n) {
  const double a = h.h11, b = h.h12, c = h.h21, d = h.h22;
  const double margins = (c + d) * (a + b) * (a + c) * (b + d);
  if (margins == 0.0) return 0.0;
  const double cross = a * d - b * c;
  return cross * cross * static_cast<double>(n) / margins;
}

double BonferroniAlpha(int64_t pairs) {
  return 1.0 - std::pow(0.95, 1.0 / static_cast<double>(pairs));
}

ChiSquareBracket BracketFor(double alpha) {
  struct Row {
    double Below;
    ChiSquareBracket Bracket;
  };
  static constexpr std::array<Row, 8> kRows = {{
      {3.29705e-9, {35.0, 36.0}},
      {5.733e-7, {25.0, 35.0}},
      {3.738e-5, {17.0, 25.0}},
      {0.001, {10.828, 17.0}},
      {0.005, {7.879, 10.828}},
      {0.01, {6.635, 7.879}},
      {0.025, {5.024, 6.635}},
      {0.05, {3.841, 5.024}},
  }};
  for (const Row& row : kRows)
    if (alpha < row.Below) return row.Bracket;
  return {3.841, 3.841};
}

bool ChiSquareBonferroni(double chi_square, double alpha, const ChiSquareBracket& bracket) {
  if (chi_square >= 35.0) return true;
  if (chi_square < bracket.Lower) return false;
  if (chi_square >= bracket.Upper) return true;
  return ChiSquareTail(chi_square, 1) <= alpha;
}

}  // namespace ovelt

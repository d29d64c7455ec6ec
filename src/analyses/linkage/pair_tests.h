#pragma once
// The tests of association of one pair of sites, their marks and the Bonferroni procedure over
// all the pairs of a run.
//
// Fisher's exact test takes the 2 x 2 table of haplotype counts; the chi-square is the plain
// Pearson statistic of that table (no continuity correction) with one degree of freedom. A pair
// is Bonferroni-significant when its P is at most alpha' = 1 - 0.95^(1/pairs), the level that
// keeps the chance of any false positive among all the pairs at 5% (Sidak's form).

#include <cstdint>
#include <string>

#include "stats/linkage_summary.h"

namespace ovelt {

// How many stars a test earns: 0 to 3 (P < 0.05, < 0.01, < 0.001 or the matching
// chi-square values).
[[nodiscard]] int FisherStars(double p);
[[nodiscard]] int ChiSquareStars(double chi_square);
// The mark as the tables print it: "***", "** ", "*  " or three blanks.
[[nodiscard]] std::string StarMark(int stars);

// The Pearson chi-square of the table; 0 when a margin is empty.
[[nodiscard]] double PairChiSquare(const HaplotypePairCounts& h, int32_t n);
// Significant at 5% as the run counts it: above 3.84145.
[[nodiscard]] constexpr bool ChiSquareSignificant(double chi_square) {
  return chi_square > 3.84145;
}

// alpha' for `pairs` comparisons.
[[nodiscard]] double BonferroniAlpha(int64_t pairs);

// The chi-square critical values (one degree of freedom) that bracket alpha': a value below the
// lower bound is not significant, one at or above the upper bound is, and one between them is
// decided by its exact P.
struct ChiSquareBracket {
  double Lower = 3.841;
  double Upper = 3.841;
};
[[nodiscard]] ChiSquareBracket BracketFor(double alpha);

// The Bonferroni decisions.
[[nodiscard]] inline bool FisherBonferroni(double p, double alpha) { return p <= alpha; }
[[nodiscard]] bool ChiSquareBonferroni(double chi_square, double alpha,
                                       const ChiSquareBracket& bracket);

}  // namespace ovelt

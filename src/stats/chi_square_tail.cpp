#include "stats/chi_square_tail.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <numbers>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

// The stop is relative to the sum: the series ends with the first term that is at most 1e-6
// of the sum. The terms then fall at least geometrically, so what is left out is of the same
// order.
constexpr double kRelativeStop = 1e-6;

// The first term in the order of its definition. Returns false when a partial product left
// the range of normal doubles, so that digits were lost.
bool FirstTermDirect(double x, int32_t df, double& term) {
  term = std::exp(-x / 2.0);
  if (df % 2 == 1) term *= std::sqrt(2.0 * x / std::numbers::pi);
  bool exact = term >= DBL_MIN;
  for (int32_t k = df; k >= 2; k -= 2) {
    term *= x / k;
    exact = exact && term >= DBL_MIN;
  }
  return exact;
}

// ln of the first term, (df/2) ln(x/2) - x/2 - ln Gamma(df/2 + 1).
double LogFirstTerm(double x, int32_t df) {
  const double half = df / 2.0;
  return half * std::log(x / 2.0) - x / 2.0 - std::lgamma(half + 1.0);
}

// Sum of the series whose first term is exp(logScale) * first. Term and sum are carried
// divided by exp(logScale) and rescaled whenever they grow large, so that neither overflows
// while the true terms climb from below the smallest double up to order 1.
double SeriesSum(double x, int32_t df, double first, double logScale) {
  constexpr double kRescaleAbove = 1e250;
  double term = first;
  double sum = first;
  for (double denominator = df + 2.0;; denominator += 2.0) {
    term *= x / denominator;
    sum += term;
    if (term <= kRelativeStop * sum) break;
    if (sum > kRescaleAbove) {
      term /= kRescaleAbove;
      sum /= kRescaleAbove;
      logScale += std::log(kRescaleAbove);
    }
  }
  return logScale == 0.0 ? sum : std::exp(logScale + std::log(sum));
}

// True when the Chernoff bound (x/df)^(df/2) exp(-(x-df)/2), valid for x > df, shows that the
// tail is below the smallest positive double. The series would then only add rounding noise,
// after as many terms as x/2.
bool TailUnderflows(double x, int32_t df) {
  if (x <= df) return false;
  const double logBound = 0.5 * df * std::log(x / df) - 0.5 * (x - df);
  return logBound < std::log(DBL_TRUE_MIN);
}

}  // namespace

double ChiSquareTail(double x, int32_t df) {
  if (df < 0) throw StatsError(kInvalidArgumentText);
  if (!(x > 0.0)) return 1.0;
  if (df == 0 || std::isinf(x) || TailUnderflows(x, df)) return 0.0;

  double first;
  const double sum = FirstTermDirect(x, df, first) ? SeriesSum(x, df, first, 0.0)
                                                   : SeriesSum(x, df, 1.0, LogFirstTerm(x, df));
  return std::max(0.0, 1.0 - sum);
}

}  // namespace ovelt

#include "stats/chi_square.h"

#include <cstdlib>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

int64_t CheckedProduct(int64_t x, int64_t y) {
  int64_t product;
  if (__builtin_mul_overflow(x, y, &product)) throw StatsError(kOverflowText);
  return product;
}

// The integer parts shared by both forms of the statistic.
struct TableTerms {
  int64_t n;             // a + b + c + d
  int64_t crossDiff;     // ad - bc
  double rowProduct;     // (a+b)(c+d)
  double columnProduct;  // (a+c)(b+d)
};

TableTerms Terms(int64_t a, int64_t b, int64_t c, int64_t d) {
  if (a < 0 || b < 0 || c < 0 || d < 0) throw StatsError(kInvalidArgumentText);
  TableTerms t{};
  t.n = a + b + c + d;
  // Both products are at most (2^31)^2, so their difference fits.
  t.crossDiff = CheckedProduct(a, d) - CheckedProduct(b, c);
  const int64_t rows = CheckedProduct(a + b, c + d);
  const int64_t columns = CheckedProduct(a + c, b + d);
  if (rows == 0 || columns == 0) throw StatsError(kDivisionByZeroText);
  t.rowProduct = static_cast<double>(rows);
  t.columnProduct = static_cast<double>(columns);
  return t;
}

}  // namespace

float ChiSquare(int32_t a, int32_t b, int32_t c, int32_t d) {
  const TableTerms t = Terms(a, b, c, d);
  const double diff = static_cast<double>(t.crossDiff);
  return static_cast<float>(static_cast<double>(t.n) * diff * diff / t.rowProduct /
                            t.columnProduct);
}

float ChiSquareYates(int32_t a, int32_t b, int32_t c, int32_t d) {
  const TableTerms t = Terms(a, b, c, d);
  const double n = static_cast<double>(t.n);
  const double corrected = static_cast<double>(std::llabs(t.crossDiff)) - n / 2.0;
  return static_cast<float>(n * corrected * corrected / t.rowProduct / t.columnProduct);
}

}  // namespace ovelt

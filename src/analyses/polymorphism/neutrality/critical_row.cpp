#include "analyses/polymorphism/neutrality/critical_row.h"

#include <array>

#include "analyses/polymorphism/neutrality/critical_tables.h"

namespace ovelt {
namespace {

// Walks from `first_walk_row` to the first row whose n is at or above `n` and takes the nearer
// of it and the row before. `last_row` must hold an n at or above `n`.
template <class Rows>
int NearerRow(const Rows& rows, int n, int first_walk_row, int last_row) {
  int i = first_walk_row;
  while (i < last_row && rows[static_cast<size_t>(i)].n < n) ++i;
  const int upper = rows[static_cast<size_t>(i)].n;
  const int lower = rows[static_cast<size_t>(i - 1)].n;
  const int midpoint = (upper + 1 - lower) / 2;
  return lower + midpoint >= n ? i - 1 : i;
}

constexpr int kTajimaLastOneByOne = 50;
constexpr int kTajimaLargestN = 1200;
constexpr int kFuLiLastOneByOne = 30;
constexpr int kFuLiLastRowN = 100;
constexpr int kFuLiLargestN = 500;

}  // namespace

std::optional<int> TajimaCriticalRowFor(int n) {
  const auto& rows = TajimaCriticalRows();
  constexpr int last = kTajimaTableRows - 1;
  if (n < rows[4].n || n > kTajimaLargestN) return std::nullopt;
  if (n <= kTajimaLastOneByOne) return n;
  if (n > rows[last].n) return last;
  return NearerRow(rows, n, kTajimaLastOneByOne + 1, last);
}

std::optional<int> FuLiCriticalRowFor(int n, int first_row) {
  if (n < first_row || n > kFuLiLargestN) return std::nullopt;
  if (n <= kFuLiLastOneByOne) return n;
  constexpr int last = kFuLiTableRows - 1;
  if (n > kFuLiLastRowN) return last;
  // The row numbers past 30 are the same in the four tables; any of them gives the sizes.
  return NearerRow(FuLiDCriticalRows(), n, kFuLiLastOneByOne + 1, last);
}

}  // namespace ovelt

#include "stats/minimum_recombination.h"

#include <cstddef>

#include "stats/column_bits.h"
#include "stats/stats_error.h"

namespace ovelt {

// The two reductions are stated pairwise over the listed intervals: of an interval and a later
// one, one containing the other, the outer one is dropped; then each surviving interval drops
// the later ones that start inside it. On a list in scan order (Low
// ascending, then High ascending) this comes to:
//  - of the pairs that share a Low only the shortest can survive, and it survives when no pair
//    with a larger Low ends at or before its High: the intervals that contain no other;
//  - those are ordered by Low and by High alike, so the overlap reduction keeps the first and
//    then each next one that starts at or after the High of the last one kept.
// The code below takes that direct road; the tests compare it with the pairwise procedure.

namespace {

// Whether columns a and b show the three gametes other than that of the first sequence (whose
// bits are 0 by construction).
bool FourGametes(const ColumnBits& bits, int32_t a, int32_t b) {
  const uint64_t* x = bits.Column(a);
  const uint64_t* y = bits.Column(b);
  uint64_t both = 0;
  uint64_t only_x = 0;
  uint64_t only_y = 0;
  for (std::size_t w = 0; w < bits.WordsPerColumn(); ++w) {
    both |= x[w] & y[w];
    only_x |= x[w] & ~y[w];
    only_y |= ~x[w] & y[w];
    if (both != 0 && only_x != 0 && only_y != 0) return true;
  }
  return false;
}

// The overlap reduction over the intervals that contain no other, given right to left; returns
// the number kept and, when `kept` is given, appends them left to right.
int32_t KeepNonOverlapping(const std::vector<SiteInterval>& right_to_left,
                           std::vector<SiteInterval>* kept) {
  int32_t count = 0;
  const SiteInterval* last = nullptr;
  for (auto it = right_to_left.rbegin(); it != right_to_left.rend(); ++it) {
    if (last != nullptr && it->Low < last->High) continue;
    ++count;
    last = &*it;
    if (kept != nullptr) kept->push_back(*it);
  }
  return count;
}

}  // namespace

MinimumRecombinationResult MinimumRecombination(std::span<const int32_t> positions,
                                                const BinaryColumnsView& columns) {
  const int32_t s = columns.columns;
  if (positions.size() != static_cast<std::size_t>(s < 0 ? 0 : s))
    throw StatsError(kSubscriptOutOfRangeText);
  for (std::size_t j = 1; j < positions.size(); ++j)
    if (positions[j] <= positions[j - 1]) throw StatsError(kInvalidArgumentText);

  MinimumRecombinationResult out;
  if (s < 2) return out;
  ColumnBits bits;
  bits.Pack(columns, /*relative_to_first=*/true);

  // first_partner[a]: the nearest b > a with four gametes, -1 when none.
  std::vector<int32_t> first_partner(static_cast<std::size_t>(s), -1);
  for (int32_t a = 0; a + 1 < s; ++a) {
    for (int32_t b = a + 1; b < s; ++b) {
      if (!FourGametes(bits, a, b)) continue;
      out.FourGametePairs.push_back(
          {positions[static_cast<std::size_t>(a)], positions[static_cast<std::size_t>(b)]});
      if (first_partner[static_cast<std::size_t>(a)] < 0)
        first_partner[static_cast<std::size_t>(a)] = b;
    }
  }

  // Intervals that contain no other, found right to left against the smallest High seen.
  std::vector<SiteInterval> innermost;
  int32_t nearest_high = s;
  for (int32_t a = s - 2; a >= 0; --a) {
    const int32_t b = first_partner[static_cast<std::size_t>(a)];
    if (b < 0 || b >= nearest_high) continue;
    nearest_high = b;
    innermost.push_back(
        {positions[static_cast<std::size_t>(a)], positions[static_cast<std::size_t>(b)]});
  }
  out.Rm = KeepNonOverlapping(innermost, &out.Intervals);
  return out;
}

int32_t RmFromColumns(const BinaryColumnsView& columns) {
  const int32_t s = columns.columns;
  if (s < 2) return 0;
  // Scratch kept per thread between replicates; taken by reference once, outside the loops.
  thread_local ColumnBits kept_bits;
  thread_local std::vector<SiteInterval> kept_innermost;
  ColumnBits& bits = kept_bits;
  std::vector<SiteInterval>& innermost = kept_innermost;
  bits.Pack(columns, /*relative_to_first=*/true);
  innermost.clear();
  // Only a partner nearer than the smallest High found to the right can make an interval that
  // contains no other, so the search for each a stops there.
  int32_t nearest_high = s;
  for (int32_t a = s - 2; a >= 0; --a) {
    for (int32_t b = a + 1; b < nearest_high; ++b) {
      if (!FourGametes(bits, a, b)) continue;
      nearest_high = b;
      innermost.push_back({a, b});
      break;
    }
  }
  return KeepNonOverlapping(innermost, nullptr);
}

}  // namespace ovelt

#pragma once
// Where the two tails of Fisher's exact test of a 2 x 2 table a b / c d run (Fisher 1935).
//
// The tables with the margins of the observed one lie on a line: one move changes a and d by
// the same amount and b and c by the opposite. The first tail runs from the observed table to
// the extreme of its own direction: towards smaller a when a d < b c, towards larger a
// otherwise (a table without association counts as positive). The second tail starts at the
// far extreme of the other direction and walks back inward.

#include <algorithm>
#include <cstdint>

namespace ovelt {

struct FisherTable {
  int64_t a, b, c, d;
};

struct FisherTails {
  // a d < b c: the first tail runs towards smaller a.
  bool NegativeAssociation = false;
  // Moves from the observed table to the extreme of its own direction; a positive count moves
  // towards smaller a and d, a negative one towards larger.
  int64_t Steps = 0;
  // The extreme of the other direction, where the second tail starts.
  FisherTable Far{};
  // The change of a (and d) per move from Far back inward.
  int64_t Inward = 0;
  // Moves possible from Far before a cell would fall below 0.
  int64_t FarMoves = 0;
};

// The tails of a table without negative cells.
[[nodiscard]] inline FisherTails FisherTailsOf(int64_t a, int64_t b, int64_t c, int64_t d) {
  FisherTails t;
  t.NegativeAssociation = a * d < b * c;
  if (t.NegativeAssociation) {
    t.Steps = std::min(a, d);
    t.Far = b < c ? FisherTable{a + b, 0, c - b, d + b} : FisherTable{a + c, b - c, 0, d + c};
    t.Inward = -1;
    t.FarMoves = std::min(t.Far.a, t.Far.d);
  } else {
    t.Steps = b >= c ? -c : -b;
    t.Far = a < d ? FisherTable{0, a + b, a + c, d - a} : FisherTable{a - d, d + b, d + c, 0};
    t.Inward = 1;
    t.FarMoves = std::min(t.Far.b, t.Far.c);
  }
  return t;
}

}  // namespace ovelt

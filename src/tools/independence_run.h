#pragma once
// A run of "Tests of Independence": the typed 2 x 2 table and its tests, with the JSON fields of
// the result. The run needs no data file; its report is a text result that is saved, printed
// and copied to the session file as any other.

#include <string_view>

#include "stats/marks.h"
#include "tools/independence_tests.h"
#include "tools/two_by_two_table.h"

namespace ovelt {

inline constexpr const char* kIndependenceStatus = "Computing Independence Tests...";

// One test in the JSON: its value, its P value and the mark of the P value.
struct IndependenceTestFields {
  double Value = 0.0;
  double P = 0.0;

  template <class V>
  void Visit(V& v) const {
    v.Number("value", Value);
    v.Number("p", P);
    v.Text("mark", PMarkText(P));
  }
};

struct FisherFields {
  double OneTail = 0.0;
  double TwoTail = 0.0;

  template <class V>
  void Visit(V& v) const {
    v.Number("one_tailed", OneTail);
    v.Text("one_tailed_mark", PMarkText(OneTail));
    v.Number("two_tailed", TwoTail);
    v.Text("two_tailed_mark", PMarkText(TwoTail));
  }
};

struct TableFields {
  const TwoByTwoTable& Table;

  template <class V>
  void Visit(V& v) const {
    v.Integer("a", Table.a);
    v.Integer("b", Table.b);
    v.Integer("c", Table.c);
    v.Integer("d", Table.d);
  }
};

struct IndependenceRun {
  TwoByTwoTable Table;
  IndependenceResult Result;

  template <class V>
  void Visit(V& v) const {
    const IndependenceResult& r = Result;
    v.Object("table", TableFields{Table});
    v.Object("fisher", FisherFields{r.FisherOneTail, r.FisherTwoTail});
    v.Object("chi_square", IndependenceTestFields{r.ChiSquare, r.ChiSquareP});
    v.Object("chi_square_yates", IndependenceTestFields{r.ChiSquareYates, r.ChiSquareYatesP});
    v.Object("g", IndependenceTestFields{r.G, r.GP});
    v.Object("g_williams", IndependenceTestFields{r.GWilliams, r.GWilliamsP});
    v.Object("g_yates", IndependenceTestFields{r.GYates, r.GYatesP});
  }
};

}  // namespace ovelt

#include "tools/independence_tests.h"

#include "stats/chi_square.h"
#include "stats/chi_square_tail.h"
#include "stats/fisher_exact.h"
#include "stats/log_factorial.h"
#include "tools/independence_g.h"

namespace ovelt {

IndependenceResult ComputeIndependence(const TwoByTwoTable& t) {
  IndependenceResult r;
  const LogFactorialTable log_factorial(t.Total());
  r.FisherTwoTail = FisherExact(t.a, t.b, t.c, t.d, r.FisherOneTail, log_factorial);

  r.ChiSquare = ChiSquare(t.a, t.b, t.c, t.d);
  r.ChiSquareP = ChiSquareTail(r.ChiSquare, 1);
  r.ChiSquareYates = ChiSquareYates(t.a, t.b, t.c, t.d);
  r.ChiSquareYatesP = ChiSquareTail(r.ChiSquareYates, 1);

  r.G = TableGTest(t, r.GWilliams);
  r.GP = ChiSquareTail(r.G, 1);
  r.GWilliamsP = ChiSquareTail(r.GWilliams, 1);
  r.GYates = YatesGTest(t);
  r.GYatesP = ChiSquareTail(r.GYates, 1);
  return r;
}

}  // namespace ovelt

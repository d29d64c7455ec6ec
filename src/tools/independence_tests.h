#pragma once
// The tests of independence of one 2 x 2 table, all with one degree of freedom: Fisher's exact
// test (Fisher 1935) with both tails, Pearson's chi-square plain and with Yates' correction
// (Yates 1934), and G plain, with Williams' correction and with Yates' correction. P values of
// the chi-square and G values are upper tails of the chi-square distribution with 1 df.
//
// The table must have passed F12Filtros: a total from 2 to 32766 and no empty row or column.

#include "tools/two_by_two_table.h"

namespace ovelt {

struct IndependenceResult {
  double FisherOneTail = 0;  // the tail of the observed direction
  float FisherTwoTail = 0;   // both tails, capped at 1
  float ChiSquare = 0;
  double ChiSquareP = 0;
  float ChiSquareYates = 0;
  double ChiSquareYatesP = 0;
  float G = 0;
  double GP = 0;
  double GWilliams = 0;
  double GWilliamsP = 0;
  float GYates = 0;
  double GYatesP = 0;
};

[[nodiscard]] IndependenceResult ComputeIndependence(const TwoByTwoTable& table);

}  // namespace ovelt

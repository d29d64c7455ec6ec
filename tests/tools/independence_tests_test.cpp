#include "tools/independence_tests.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/hand_math.h"
#include "tools/independence_g.h"

namespace ovelt {
namespace {

using testing::Choose;

// P of the table with first cell `a` among those with the margins of `t`, by direct products.
double TableProbability(const TwoByTwoTable& t, int a) {
  const int row1 = t.a + t.b, row2 = t.c + t.d, column1 = t.a + t.c;
  return Choose(row1, a) * Choose(row2, column1 - a) / Choose(row1 + row2, column1);
}

// The upper tail of the chi-square distribution with 1 df: P(|Z| >= sqrt(x)).
double Tail1(double x) { return std::erfc(std::sqrt(x / 2)); }

// G as 2 sum O ln(O / E), E from the margins; an empty cell adds nothing.
double GByExpectation(double a, double b, double c, double d) {
  const double n = a + b + c + d;
  const double observed[4] = {a, b, c, d};
  const double expected[4] = {(a + b) * (a + c) / n, (a + b) * (b + d) / n, (c + d) * (a + c) / n,
                              (c + d) * (b + d) / n};
  double g = 0;
  for (int i = 0; i < 4; ++i)
    if (observed[i] > 0) g += observed[i] * std::log(observed[i] / expected[i]);
  return 2 * g;
}

double Williams(const TwoByTwoTable& t) {
  const double n = t.Total();
  return 1 + (n / (t.a + t.b) + n / (t.c + t.d) - 1) * (n / (t.a + t.c) + n / (t.b + t.d) - 1) /
                 (6 * n);
}

TEST(IndependenceTests, FisherOnAHandEnumeratedSymmetricTable) {
  // Margins 4 4 / 4 4: P(a = i) = C(4,i)^2 / 70 = 1, 16, 36, 16, 1 (/70). Observed a = 3: the
  // tail a >= 3 is 17/70; the other tail, from a = 0 inward while its sum stays at most 17/70,
  // takes a = 0 and a = 1 (1 + 16 = 17, equal): 34/70 in all.
  const TwoByTwoTable t{3, 1, 1, 3};
  EXPECT_NEAR(TableProbability(t, 3), 16.0 / 70, 1e-15);
  const IndependenceResult r = ComputeIndependence(t);
  EXPECT_NEAR(r.FisherOneTail, TableProbability(t, 3) + TableProbability(t, 4), 1e-12);
  EXPECT_NEAR(r.FisherOneTail, 17.0 / 70, 1e-12);
  EXPECT_FLOAT_EQ(r.FisherTwoTail, static_cast<float>(34.0 / 70));
}

TEST(IndependenceTests, FisherOnAnAsymmetricTable) {
  // Margins 5 5 / 6 4: P(a = 1..5) = 6, 60, 120, 60, 6 (/252). Observed a = 5 is the extreme:
  // one tail 6/252; the other tail takes a = 1 (6/252, equal) and stops before a = 2.
  const TwoByTwoTable t{5, 0, 1, 4};
  double total = 0;
  for (int a = 1; a <= 5; ++a) total += TableProbability(t, a);
  EXPECT_NEAR(total, 1.0, 1e-12);
  const IndependenceResult r = ComputeIndependence(t);
  EXPECT_NEAR(r.FisherOneTail, TableProbability(t, 5), 1e-12);
  EXPECT_NEAR(r.FisherOneTail, 6.0 / 252, 1e-12);
  EXPECT_FLOAT_EQ(r.FisherTwoTail, static_cast<float>(12.0 / 252));
}

TEST(IndependenceTests, FisherOfANegativeAssociation) {
  // The mirror of the table above: the tail runs towards smaller a.
  const TwoByTwoTable t{0, 5, 4, 1};
  const IndependenceResult r = ComputeIndependence(t);
  EXPECT_NEAR(r.FisherOneTail, TableProbability(t, 0), 1e-12);
  EXPECT_NEAR(r.FisherOneTail, 6.0 / 252, 1e-12);
  EXPECT_FLOAT_EQ(r.FisherTwoTail, static_cast<float>(12.0 / 252));
}

TEST(IndependenceTests, ChiSquareAndItsPValues) {
  // (3 1 / 1 3): N (ad - bc)^2 / (4 4 4 4) = 8 64 / 256 = 2; Yates: 8 (8 - 4)^2 / 256 = 0.5.
  const IndependenceResult r = ComputeIndependence({3, 1, 1, 3});
  EXPECT_FLOAT_EQ(r.ChiSquare, 2.0f);
  EXPECT_FLOAT_EQ(r.ChiSquareYates, 0.5f);
  EXPECT_NEAR(r.ChiSquareP, Tail1(2.0), 1e-6);
  EXPECT_NEAR(r.ChiSquareYatesP, Tail1(0.5), 1e-6);
}

TEST(IndependenceTests, GAndItsCorrections) {
  const TwoByTwoTable t{3, 1, 1, 3};
  const IndependenceResult r = ComputeIndependence(t);
  // G = 2 (6 ln 3 + 8 ln 8 - 16 ln 4) = 12 ln 3 - 16 ln 2.
  EXPECT_NEAR(r.G, 12 * std::log(3.0) - 16 * std::log(2.0), 1e-5);
  EXPECT_NEAR(r.G, GByExpectation(3, 1, 1, 3), 1e-5);
  // q = 1 + 3 3 / 48 = 1.1875.
  EXPECT_NEAR(Williams(t), 1.1875, 1e-15);
  EXPECT_NEAR(r.GWilliams, GByExpectation(3, 1, 1, 3) / 1.1875, 1e-9);
  // ad - bc = 8 is positive: a and d fall by 0.5, b and c rise.
  EXPECT_NEAR(r.GYates, GByExpectation(2.5, 1.5, 1.5, 2.5), 1e-5);
  EXPECT_NEAR(r.GP, Tail1(r.G), 1e-6);
  EXPECT_NEAR(r.GWilliamsP, Tail1(r.GWilliams), 1e-6);
  EXPECT_NEAR(r.GYatesP, Tail1(r.GYates), 1e-6);
}

TEST(IndependenceTests, YatesMovesTheCellsTowardsIndependence) {
  const MovedCells negative = YatesMovedCells({1, 4, 5, 2});  // ad - bc = -18
  EXPECT_EQ(negative.a, 1.5f);
  EXPECT_EQ(negative.b, 3.5f);
  EXPECT_EQ(negative.c, 4.5f);
  EXPECT_EQ(negative.d, 2.5f);
  const MovedCells positive = YatesMovedCells({4, 1, 2, 5});  // ad - bc = 18
  EXPECT_EQ(positive.a, 3.5f);
  EXPECT_EQ(positive.b, 1.5f);
  EXPECT_EQ(positive.c, 2.5f);
  EXPECT_EQ(positive.d, 4.5f);
  // ad = bc takes the second branch: a and d fall.
  const MovedCells independent = YatesMovedCells({2, 4, 3, 6});
  EXPECT_EQ(independent.a, 1.5f);
  EXPECT_EQ(independent.b, 4.5f);
}

TEST(IndependenceTests, EmptyCellsAddNothingToG) {
  // (0 5 / 5 0): every expected cell is 2.5; G = 2 (5 ln 2 + 5 ln 2) = 20 ln 2.
  const TwoByTwoTable t{0, 5, 5, 0};
  double williams = 0;
  const float g = TableGTest(t, williams);
  EXPECT_NEAR(g, 20 * std::log(2.0), 1e-5);
  EXPECT_NEAR(williams, 20 * std::log(2.0) / Williams(t), 1e-9);
  // ad - bc = -25: a and d rise to 0.5, b and c fall to 4.5.
  EXPECT_NEAR(YatesGTest(t), GByExpectation(0.5, 4.5, 4.5, 0.5), 1e-5);

  const IndependenceResult r = ComputeIndependence(t);
  EXPECT_NEAR(r.FisherOneTail, 1.0 / 252, 1e-12);
  EXPECT_FLOAT_EQ(r.FisherTwoTail, static_cast<float>(2.0 / 252));
  EXPECT_FLOAT_EQ(r.ChiSquare, 10.0f);
}

TEST(IndependenceTests, GWithAndWithoutEmptyCellsAgreeAsACellEmpties) {
  // The guarded sum is the limit of the primitive's: a cell of 1 in a large table is close.
  double w_empty = 0, w_full = 0;
  const float empty = TableGTest({0, 3000, 2000, 1000}, w_empty);
  const float full = TableGTest({1, 3000, 2000, 1000}, w_full);
  EXPECT_NEAR(empty, full, 0.01 * full);
  EXPECT_NEAR(empty, GByExpectation(0, 3000, 2000, 1000), 1e-3);
}

TEST(IndependenceTests, AnIndependentTableHasNoAssociation) {
  // ad = bc: chi-square and G are 0 and their P values 1.
  const IndependenceResult r = ComputeIndependence({2, 4, 3, 6});
  EXPECT_EQ(r.ChiSquare, 0.0f);
  EXPECT_NEAR(r.G, 0.0f, 1e-5);
  EXPECT_EQ(r.ChiSquareP, 1.0);
  EXPECT_NEAR(r.GP, 1.0, 1e-6);
  EXPECT_FLOAT_EQ(r.FisherTwoTail, 1.0f);  // the tails meet; capped at 1
}

TEST(IndependenceTests, TheLargestTableRuns) {
  const IndependenceResult r = ComputeIndependence({8192, 8192, 8191, 8191});
  EXPECT_FLOAT_EQ(r.FisherTwoTail, 1.0f);
  EXPECT_LT(r.ChiSquare, 1e-3f);
}

}  // namespace
}  // namespace ovelt

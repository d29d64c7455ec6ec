#include "analyses/recombination/c_grid_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "analyses/recombination/hudson_g.h"

namespace ovelt {
namespace {

TEST(CGrid, StepsByRange) {
  EXPECT_DOUBLE_EQ(NextGridPoint(0.0), 0.001);
  EXPECT_DOUBLE_EQ(NextGridPoint(0.005), 0.006);
  // A bound met exactly takes the smaller step.
  EXPECT_DOUBLE_EQ(NextGridPoint(0.009), 0.010);
  EXPECT_DOUBLE_EQ(NextGridPoint(0.09), 0.1);
  EXPECT_DOUBLE_EQ(NextGridPoint(0.095), 0.195);
  EXPECT_DOUBLE_EQ(NextGridPoint(99.9), 100.0);
  EXPECT_DOUBLE_EQ(NextGridPoint(150.0), 151.0);
  EXPECT_DOUBLE_EQ(NextGridPoint(10000.0), 10001.0);
}

// Nine steps of 0.001 in double precision end a hair above 0.009
// (0.009000000000000001), so the tenth is a step of 0.01: the grid is walked on the
// accumulated sum, not on exact decimals.
TEST(CGrid, AccumulatedSumDecidesTheStep) {
  double c = 0.0;
  for (int i = 0; i < 9; ++i) c = NextGridPoint(c);
  EXPECT_GT(c, 0.009);
  EXPECT_NEAR(NextGridPoint(c), 0.019, 1e-15);
}

TEST(CGrid, TargetAboveTheFirstPointStopsThere) {
  int calls = 0;
  const CGridResult r = SearchC(0.9, [&calls](double c) {
    ++calls;
    return HudsonG(c, 4);
  });
  EXPECT_DOUBLE_EQ(r.C, 0.001);
  EXPECT_FALSE(r.AboveLimit);
  EXPECT_EQ(r.Steps, 1);
  EXPECT_EQ(calls, 1);
}

TEST(CGrid, FirstPointBelowTheTarget) {
  // g(C, 10) is 0.640782 at C = 1: near there the grid runs ..., 0.899, 0.999, 1.099 (steps of
  // 0.1 from 0.099), and g(0.999, 10) = 0.64086 is still above 0.6408, so the walk stops at
  // 1.099, not at the C where g crosses the target.
  const double target = 0.6408;
  const CGridResult r = SearchC(target, [](double c) { return HudsonG(c, 10); });
  EXPECT_NEAR(r.C, 1.099, 1e-9);
  EXPECT_LT(HudsonG(r.C, 10), target);
  EXPECT_GE(HudsonG(r.C - 0.1, 10), target);
  // 9 steps of 0.001, 9 of 0.01, then 10 of 0.1.
  EXPECT_EQ(r.Steps, 28);
}

TEST(CGrid, TargetBelowEveryValuePassesTheLimit) {
  const CGridResult r = SearchC(0.0, [](double c) { return HudsonG(c, 2); });
  EXPECT_TRUE(r.AboveLimit);
  EXPECT_GT(r.C, 10000.0);
  EXPECT_LT(r.C, 10002.0);
  // 9 + 9 steps below 0.1, 999 of 0.1 up to 99.9 and about 9901 of 1.
  EXPECT_NEAR(r.Steps, 10918, 2);
}

TEST(CGrid, NotFiniteIsAFault) {
  EXPECT_THROW((void)SearchC(0.5, [](double) { return std::nan(""); }), std::domain_error);
}

TEST(CGrid, MaskBySize) {
  EXPECT_EQ(CMask(0.001), "0.000");
  EXPECT_EQ(CMask(0.009), "0.000");
  EXPECT_EQ(CMask(0.019), "0.00");
  EXPECT_EQ(CMask(0.09), "0.00");
  EXPECT_EQ(CMask(0.19), "0.0");
  EXPECT_EQ(CMask(99.9), "0.0");
  EXPECT_EQ(CMask(100.9), "0");
}

}  // namespace
}  // namespace ovelt

#include "stats/marks.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

TEST(ChiMark, BoundsOfOneDegreeOfFreedom) {
  EXPECT_EQ(ChiMark(0.0), "   ");
  EXPECT_EQ(ChiMark(3.841), "   ");  // the 5% bound itself is not above it
  EXPECT_EQ(ChiMark(3.8411), "*  ");
  EXPECT_EQ(ChiMark(6.6349), "*  ");
  EXPECT_EQ(ChiMark(6.635), "** ");
  EXPECT_EQ(ChiMark(10.8279), "** ");
  EXPECT_EQ(ChiMark(10.828), "***");
  EXPECT_EQ(ChiMark(500.0), "***");
}

TEST(ChiMark, BoundsAreTheCriticalValuesOfOneDegree) {
  // P(chi2 with 1 df >= x) = erfc(sqrt(x / 2)).
  auto tail = [](double x) { return std::erfc(std::sqrt(x / 2.0)); };
  EXPECT_NEAR(tail(3.841), 0.05, 1e-4);
  EXPECT_NEAR(tail(6.635), 0.01, 1e-5);
  EXPECT_NEAR(tail(10.828), 0.001, 1e-6);
}

TEST(ChiMark, ComparedAsFloats) {
  // Just below 6.635 in double, but the same float: at the bound.
  EXPECT_EQ(ChiMark(6.635 - 1e-9), "** ");
  // Just above 3.841 in double, but the same float: not above the bound.
  EXPECT_EQ(ChiMark(3.841 + 1e-9), "   ");
}

TEST(PMarkText, Bounds) {
  EXPECT_EQ(PMarkText(0.0), "***");
  EXPECT_EQ(PMarkText(0.00099), "***");
  EXPECT_EQ(PMarkText(0.001), "**");
  EXPECT_EQ(PMarkText(0.0099), "**");
  EXPECT_EQ(PMarkText(0.01), "*");
  EXPECT_EQ(PMarkText(0.0499), "*");
  EXPECT_EQ(PMarkText(0.05), "  (not significant)");
  EXPECT_EQ(PMarkText(1.0), "  (not significant)");
}

TEST(PMarkShort, Bounds) {
  EXPECT_EQ(PMarkShort(0.00099), " ***");
  EXPECT_EQ(PMarkShort(0.001), " **");
  EXPECT_EQ(PMarkShort(0.0099), " **");
  EXPECT_EQ(PMarkShort(0.01), " *");
  EXPECT_EQ(PMarkShort(0.0499), " *");
  EXPECT_EQ(PMarkShort(0.05), " ns");
  EXPECT_EQ(PMarkShort(0.5), " ns");
}

TEST(PMarkShort, ComparedAsFloats) {
  // 0.05 - 1e-10 rounds to the float of 0.05 and is therefore not below it.
  EXPECT_EQ(PMarkShort(0.05 - 1e-10), " ns");
  EXPECT_EQ(PMarkText(0.01 - 1e-11), "*");
}

}  // namespace
}  // namespace ovelt

#include "tools/calculator_display.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(CalculatorDisplay, ZeroIsZeroPoint) {
  EXPECT_EQ(CalculatorDisplay(0.0), "0.");
  EXPECT_EQ(CalculatorDisplay(-0.0), "0.");
}

TEST(CalculatorDisplay, PlainDigitsUpTo1e11) {
  EXPECT_EQ(CalculatorDisplay(1e11), "100000000000.");
  EXPECT_EQ(CalculatorDisplay(-1e11), "-100000000000.");
  EXPECT_EQ(CalculatorDisplay(99999999999.5), "99999999999.5");
  EXPECT_EQ(CalculatorDisplay(5.0), "5.");
  EXPECT_EQ(CalculatorDisplay(0.5), "0.5");
  EXPECT_EQ(CalculatorDisplay(-2.25), "-2.25");
  EXPECT_EQ(CalculatorDisplay(1.0 / 3), "0.3333333333333");  // 13 decimals at most
  EXPECT_EQ(CalculatorDisplay(2.0 / 3), "0.6666666666667");
}

TEST(CalculatorDisplay, TheExponentFormAbove1e11) {
  EXPECT_EQ(CalculatorDisplay(1.1e11), "1.100000E+11");
  EXPECT_EQ(CalculatorDisplay(-1.1e11), "-1.100000E+11");
  EXPECT_EQ(CalculatorDisplay(6.02214076e23), "6.022141E+23");
}

TEST(CalculatorDisplay, DownTo1e11AndTheExponentFormBelow) {
  EXPECT_EQ(CalculatorDisplay(1e-11), "0.00000000001");
  EXPECT_EQ(CalculatorDisplay(1.5e-11), "0.000000000015");
  EXPECT_EQ(CalculatorDisplay(9e-12), "9.000000E-12");
  EXPECT_EQ(CalculatorDisplay(-2.5e-15), "-2.500000E-15");
}

TEST(CalculatorDisplay, TheLocalesPoint) {
  EXPECT_EQ(CalculatorDisplay(2.5, ','), "2,5");
  EXPECT_EQ(CalculatorDisplay(7.0, ','), "7,");
  EXPECT_EQ(CalculatorDisplay(1.1e11, ','), "1,100000E+11");
}

}  // namespace
}  // namespace ovelt

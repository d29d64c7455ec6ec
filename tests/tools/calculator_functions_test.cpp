#include "tools/calculator_functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ovelt {
namespace {

double Value(CalcFunction f, double x) {
  const CalcFunctionOutcome outcome = ApplyCalcFunction(f, x);
  EXPECT_FALSE(outcome.Failure) << outcome.Failure->Text;
  return outcome.Value;
}

std::string Failure(CalcFunction f, double x) {
  const CalcFunctionOutcome outcome = ApplyCalcFunction(f, x);
  return outcome.Failure ? outcome.Failure->Text + "|" + outcome.Failure->Title : "";
}

TEST(CalculatorFunctions, A1OfOneIsZero) {
  EXPECT_EQ(Value(CalcFunction::kA1, 1), 0.0);
  EXPECT_EQ(Value(CalcFunction::kA1, 0), 0.0);
  EXPECT_EQ(Value(CalcFunction::kA1, 2), 1.0);
  EXPECT_DOUBLE_EQ(Value(CalcFunction::kA1, 4), 1 + 0.5 + 1.0 / 3);
  // n is the integer part of x.
  EXPECT_DOUBLE_EQ(Value(CalcFunction::kA1, 4.9), 1 + 0.5 + 1.0 / 3);
}

TEST(CalculatorFunctions, A1Accepts32767AndRefuses32768) {
  // a1(32767) = H(32766), by the asymptotic series ln m + gamma + 1/(2m) - 1/(12 m^2).
  const double m = 32766;
  EXPECT_NEAR(Value(CalcFunction::kA1, 32767),
              std::log(m) + 0.5772156649015329 + 1 / (2 * m) - 1 / (12 * m * m), 1e-10);
  EXPECT_EQ(Failure(CalcFunction::kA1, 32768), "Can't compute values higher than 32767|Ovelt");
  EXPECT_EQ(Failure(CalcFunction::kA2, 32768), "Can't compute values higher than 32767|Ovelt");
  EXPECT_EQ(Failure(CalcFunction::kA1, 32767.5), "Can't compute values higher than 32767|Ovelt");
}

TEST(CalculatorFunctions, A2) {
  EXPECT_EQ(Value(CalcFunction::kA2, 1), 0.0);
  EXPECT_DOUBLE_EQ(Value(CalcFunction::kA2, 3), 1.25);
  // The full series is pi^2 / 6; its tail after n - 1 terms is close to 1/(n - 1) - 1/(2(n-1)^2).
  const double m = 32766;
  EXPECT_NEAR(Value(CalcFunction::kA2, 32767),
              std::numbers::pi * std::numbers::pi / 6 - 1 / m + 1 / (2 * m * m), 1e-10);
}

TEST(CalculatorFunctions, NegativeValuesAreRefused) {
  for (const CalcFunction f : {CalcFunction::kA1, CalcFunction::kA2, CalcFunction::kSquareRoot,
                               CalcFunction::kJukesCantor})
    EXPECT_EQ(Failure(f, -0.5), "Can't compute Negative values|Ovelt");
}

TEST(CalculatorFunctions, JukesAndCantorRefuses075AndAcceptsJustBelow) {
  EXPECT_EQ(Failure(CalcFunction::kJukesCantor, 0.75),
            "Can't compute Jukes and Cantor for values equal or higher than 0.75|Ovelt");
  EXPECT_EQ(Failure(CalcFunction::kJukesCantor, 0.9),
            "Can't compute Jukes and Cantor for values equal or higher than 0.75|Ovelt");
  // The distance d inverts as p = (3/4)(1 - exp(-4d/3)).
  const double d = Value(CalcFunction::kJukesCantor, 0.7499);
  EXPECT_NEAR(0.75 * (1 - std::exp(-4 * d / 3)), 0.7499, 1e-12);
  EXPECT_EQ(Value(CalcFunction::kJukesCantor, 0), 0.0);
  const double small = Value(CalcFunction::kJukesCantor, 0.1);
  EXPECT_NEAR(0.75 * (1 - std::exp(-4 * small / 3)), 0.1, 1e-15);
}

TEST(CalculatorFunctions, LogarithmOfZeroOrLessIsRefused) {
  EXPECT_EQ(Failure(CalcFunction::kLn, 0), "Can't compute values equal or lower than 0|Ovelt");
  EXPECT_EQ(Failure(CalcFunction::kLn, -1), "Can't compute values equal or lower than 0|Ovelt");
  EXPECT_NEAR(std::exp(Value(CalcFunction::kLn, 7.5)), 7.5, 1e-14);
}

TEST(CalculatorFunctions, ReciprocalRootAndSquare) {
  EXPECT_EQ(Failure(CalcFunction::kReciprocal, 0), "Invalid selection|Ovelt");
  EXPECT_EQ(Value(CalcFunction::kReciprocal, 4), 0.25);
  EXPECT_EQ(Value(CalcFunction::kSquareRoot, 2.25), 1.5);
  EXPECT_EQ(Value(CalcFunction::kSquareRoot, 0), 0.0);
  EXPECT_EQ(Value(CalcFunction::kSquare, -1.5), 2.25);
}

TEST(CalculatorFunctions, AResultBeyondTheDoublesIsAnError) {
  EXPECT_EQ(Failure(CalcFunction::kSquare, 1e200), "Error|Ovelt");
  EXPECT_EQ(Failure(CalcFunction::kReciprocal, 1e-320), "Error|Ovelt");
}

}  // namespace
}  // namespace ovelt

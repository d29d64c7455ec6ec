#include "tools/calculator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tools/calculator_display.h"

namespace ovelt {
namespace {

// Types the digits and the point of `number` ("12.5") as keys.
void Type(Calculator& calc, const std::string& number) {
  for (const char c : number) {
    if (c == '.') {
      calc.Decimal();
    } else {
      calc.Number(c - '0');
    }
  }
}

void Ok(const CalcOutcome& outcome) { EXPECT_FALSE(outcome) << outcome->Text; }

TEST(Calculator, StartsAtZero) {
  Calculator calc;
  EXPECT_EQ(calc.Readout(), "0.");
  EXPECT_EQ(calc.Last(), LastInput::kNone);
  EXPECT_EQ(calc.PendingOperator(), ' ');
  EXPECT_STREQ(LastInputText(calc.Last()), "NONE");
}

TEST(Calculator, DigitsAreAppended) {
  Calculator calc;
  calc.Number(0);
  EXPECT_EQ(calc.Readout(), "0.");
  Type(calc, "120");
  EXPECT_EQ(calc.Readout(), "120.");
  calc.Decimal();
  Type(calc, "05");
  EXPECT_EQ(calc.Readout(), "120.05");
  calc.Decimal();  // a second point adds nothing
  EXPECT_EQ(calc.Readout(), "120.05");
  EXPECT_EQ(calc.Last(), LastInput::kNums);
}

TEST(Calculator, ThePointStartsAFraction) {
  Calculator calc;
  calc.Decimal();
  EXPECT_EQ(calc.Readout(), "0.");
  calc.Number(5);
  EXPECT_EQ(calc.Readout(), "0.5");
}

TEST(Calculator, ChainsLikeAFourFunctionCalculator) {
  // 2 + 3 X 4 = : the "X" shows 5, "=" gives 5 X 4 = 20.
  Calculator calc;
  Type(calc, "2");
  Ok(calc.Operator('+'));
  Type(calc, "3");
  Ok(calc.Operator('X'));
  EXPECT_EQ(calc.Readout(), "5.");
  EXPECT_EQ(calc.PendingOperator(), 'X');
  Type(calc, "4");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "20.");
  EXPECT_EQ(calc.Accumulator(), 20.0);
  EXPECT_EQ(calc.Last(), LastInput::kEquals);
  EXPECT_STREQ(LastInputText(calc.Last()), "=");
}

TEST(Calculator, EqualsEndsTheChain) {
  Calculator calc;
  Type(calc, "7");
  Ok(calc.Operator('-'));
  Type(calc, "2");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "5.");
  // A number typed after "=" begins a new chain.
  Type(calc, "9");
  Ok(calc.Operator('/'));
  Type(calc, "4");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "2.25");
  // An operator after "=" goes on from the result.
  Ok(calc.Operator('X'));
  Type(calc, "2");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "4.5");
}

TEST(Calculator, MinusWhereANumberIsExpectedIsASign) {
  Calculator calc;
  Ok(calc.Operator('-'));
  EXPECT_EQ(calc.Readout(), "-");
  EXPECT_EQ(calc.Last(), LastInput::kNeg);
  EXPECT_STREQ(LastInputText(calc.Last()), "NEG");
  Type(calc, "5");
  EXPECT_EQ(calc.Readout(), "-5.");
  Ok(calc.Operator('+'));
  Type(calc, "3");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "-2.");

  // After "X" the minus is the sign of the second operand: 5 X -3 = -15.
  Calculator times;
  Type(times, "5");
  Ok(times.Operator('X'));
  Ok(times.Operator('-'));
  EXPECT_EQ(times.Readout(), "-");
  EXPECT_EQ(times.PendingOperator(), 'X');
  Type(times, "3");
  Ok(times.Operator('='));
  EXPECT_EQ(times.Readout(), "-15.");

  // After "=" it subtracts from the result.
  Calculator after;
  Type(after, "5");
  Ok(after.Operator('='));
  Ok(after.Operator('-'));
  Type(after, "8");
  Ok(after.Operator('='));
  EXPECT_EQ(after.Readout(), "-3.");
}

TEST(Calculator, ThePointAfterALoneSign) {
  Calculator calc;
  Ok(calc.Operator('-'));
  calc.Decimal();
  EXPECT_EQ(calc.Readout(), "-0.");
  calc.Number(2);
  EXPECT_EQ(calc.Readout(), "-0.2");
}

TEST(Calculator, FunctionKeysDoNothingAfterALoneSign) {
  Calculator calc;
  Type(calc, "4");
  Ok(calc.Operator('X'));
  Ok(calc.Operator('-'));
  Ok(calc.RaizCuadrada());
  Ok(calc.Logaritmo());
  Ok(calc.Percent());
  Ok(calc.Operator('+'));
  EXPECT_EQ(calc.Readout(), "-");
  EXPECT_EQ(calc.Last(), LastInput::kNeg);
  Type(calc, "2");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "-8.");
}

TEST(Calculator, PercentOfTheAccumulator) {
  // 200 + 10 % shows 0.1 and leaves "%" pending; "=" gives 200 X 0.1 = 20.
  Calculator calc;
  Type(calc, "200");
  Ok(calc.Operator('+'));
  Type(calc, "10");
  Ok(calc.Percent());
  EXPECT_EQ(calc.Readout(), "0.1");
  EXPECT_EQ(calc.PendingOperator(), '%');
  EXPECT_EQ(calc.Last(), LastInput::kOps);
  EXPECT_STREQ(LastInputText(calc.Last()), "Ops");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "20.");

  // With no accumulator the percent is the first operand: 50 % X 3 = 1.5.
  Calculator first;
  Type(first, "50");
  Ok(first.Percent());
  Ok(first.Operator('X'));
  Type(first, "3");
  Ok(first.Operator('='));
  EXPECT_EQ(first.Readout(), "1.5");
}

TEST(Calculator, FunctionKeysActOnTheDisplay) {
  // 5 + 9 sqrt = : the root is the second operand, 5 + 3 = 8.
  Calculator calc;
  Type(calc, "5");
  Ok(calc.Operator('+'));
  Type(calc, "9");
  Ok(calc.RaizCuadrada());
  EXPECT_EQ(calc.Readout(), "3.");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "8.");
  // On a result: 8 x^2 = 64, and a new number replaces it.
  Ok(calc.Xcuadrado());
  EXPECT_EQ(calc.Readout(), "64.");
  Type(calc, "3");
  EXPECT_EQ(calc.Readout(), "3.");

  Calculator keys;
  Type(keys, "4");
  Ok(keys.Inverso());
  EXPECT_EQ(keys.Readout(), "0.25");
  Ok(keys.BotonA1());  // the integer part of 0.25 is 0: a1 = 0
  EXPECT_EQ(keys.Readout(), "0.");
  Type(keys, "3");
  Ok(keys.BotonA2());
  EXPECT_EQ(keys.Readout(), "1.25");
  Type(keys, "1");
  Ok(keys.Logaritmo());
  EXPECT_EQ(keys.Readout(), "0.");
}

TEST(Calculator, A1OfOneIsZero) {
  Calculator calc;
  Type(calc, "1");
  Ok(calc.BotonA1());
  EXPECT_EQ(calc.Readout(), "0.");
}

TEST(Calculator, A1Accepts32767AndRefuses32768) {
  Calculator calc;
  Type(calc, "32767");
  Ok(calc.BotonA1());
  const double m = 32766;
  const double expected = std::log(m) + 0.5772156649015329 + 1 / (2 * m) - 1 / (12 * m * m);
  EXPECT_EQ(calc.Readout(), CalculatorDisplay(expected)) << calc.Readout();

  Calculator refused;
  Type(refused, "32768");
  const CalcOutcome outcome = refused.BotonA1();
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->Text, "Can't compute values higher than 32767");
  EXPECT_EQ(outcome->Title, "Ovelt");
  EXPECT_EQ(refused.Readout(), "32768.");  // the display stays as it was
  // Typing goes on where it was.
  refused.Number(1);
  EXPECT_EQ(refused.Readout(), "327681.");
}

TEST(Calculator, JukesAndCantorRefuses075ButNot07499) {
  Calculator calc;
  Type(calc, ".75");
  const CalcOutcome outcome = calc.JukesAndCantor();
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->Text, "Can't compute Jukes and Cantor for values equal or higher than 0.75");
  EXPECT_EQ(calc.Readout(), "0.75");

  Calculator below;
  Type(below, "0.7499");
  Ok(below.JukesAndCantor());
  EXPECT_EQ(below.Readout(), CalculatorDisplay(-0.75 * std::log(1 - 4 * 0.7499 / 3)));
}

TEST(Calculator, EachFailureLeavesTheDisplay) {
  Calculator calc;
  Type(calc, "0");
  EXPECT_EQ(calc.Inverso()->Text, "Invalid selection");
  EXPECT_EQ(calc.Logaritmo()->Text, "Can't compute values equal or lower than 0");
  EXPECT_EQ(calc.Readout(), "0.");

  Calculator negative;
  Ok(negative.Operator('-'));
  Type(negative, "4");
  EXPECT_EQ(negative.RaizCuadrada()->Text, "Can't compute Negative values");
  EXPECT_EQ(negative.BotonA2()->Text, "Can't compute Negative values");
  EXPECT_EQ(negative.JukesAndCantor()->Text, "Can't compute Negative values");
  EXPECT_EQ(negative.Readout(), "-4.");
}

TEST(Calculator, DivisionByZero) {
  Calculator calc;
  Type(calc, "8");
  Ok(calc.Operator('/'));
  Type(calc, "0");
  const CalcOutcome outcome = calc.Operator('=');
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->Text, "Can't divide by zero");
  EXPECT_EQ(outcome->Title, "Calculator");
  EXPECT_EQ(calc.Readout(), "0.");
  // The chain is as it was: a new divisor finishes it.
  calc.CancelEntry();
  Type(calc, "4");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "2.");
}

TEST(Calculator, AnOverflowIsAnError) {
  Calculator calc;
  calc.Number(1);
  for (int i = 0; i < 200; ++i) calc.Number(0);  // 1e200
  Ok(calc.Operator('X'));
  calc.Number(1);
  for (int i = 0; i < 200; ++i) calc.Number(0);
  const CalcOutcome outcome = calc.Operator('=');
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->Text, "Error");
  EXPECT_EQ(outcome->Title, "Ovelt");
}

TEST(Calculator, AResultOf1e11ShowsPlainDigitsAnd11e11TheExponent) {
  Calculator calc;
  Type(calc, "10000000");
  Ok(calc.Operator('X'));
  Type(calc, "10000");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "100000000000.");

  Calculator larger;
  Type(larger, "11000000");
  Ok(larger.Operator('X'));
  Type(larger, "10000");
  Ok(larger.Operator('='));
  EXPECT_EQ(larger.Readout(), "1.100000E+11");
}

TEST(Calculator, ResultsKeepTheirFullPrecision) {
  // 1 / 3 shows 13 decimals, but 1 / 3 X 3 is 1.
  Calculator calc;
  Type(calc, "1");
  Ok(calc.Operator('/'));
  Type(calc, "3");
  Ok(calc.Operator('X'));
  EXPECT_EQ(calc.Readout(), "0.3333333333333");
  Type(calc, "3");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "1.");
}

TEST(Calculator, ClearEntryAndClearAll) {
  Calculator calc;
  Type(calc, "5");
  Ok(calc.Operator('+'));
  Type(calc, "3");
  calc.CancelEntry();
  EXPECT_EQ(calc.Readout(), "0.");
  Type(calc, "4");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "9.");

  Type(calc, "6");
  Ok(calc.Operator('X'));
  calc.Cancel();
  EXPECT_EQ(calc.Readout(), "0.");
  EXPECT_EQ(calc.Accumulator(), 0.0);
  EXPECT_EQ(calc.PendingOperator(), ' ');
  Type(calc, "2");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "2.");
}

TEST(Calculator, TheLocalesCommaIsShownAndReadBack) {
  Calculator calc(',');
  EXPECT_EQ(calc.Readout(), "0,");
  Type(calc, "2.5");
  EXPECT_EQ(calc.Readout(), "2,5");
  Ok(calc.Operator('X'));
  Type(calc, "3");
  Ok(calc.Operator('='));
  EXPECT_EQ(calc.Readout(), "7,5");
  Ok(calc.Xcuadrado());
  EXPECT_EQ(calc.Readout(), "56,25");
}

TEST(Calculator, OtherKeysAreIgnored) {
  Calculator calc;
  calc.Number(12);
  Ok(calc.Operator('^'));
  EXPECT_EQ(calc.Readout(), "0.");
  EXPECT_EQ(calc.Last(), LastInput::kNone);
}

}  // namespace
}  // namespace ovelt

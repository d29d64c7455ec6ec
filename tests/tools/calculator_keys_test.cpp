#include "tools/calculator_keys.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

std::string Press(const std::string& keys, char separator = '.') {
  Calculator calc(separator);
  const CalcKeyParse parse = ParseCalculatorKeys(keys);
  EXPECT_EQ(parse.BadWord, "");
  std::string failures;
  for (const CalcKey& key : parse.Keys)
    if (const auto failure = PressKey(calc, key)) failures += "[" + failure->Text + "]";
  return calc.Readout() + failures;
}

TEST(CalculatorKeys, WordsAndCharacters) {
  const CalcKeyParse parse = ParseCalculatorKeys("12.5 x 2 = sqrt CE c 1/x");
  ASSERT_EQ(parse.Keys.size(), 11u);
  EXPECT_EQ(parse.Keys[0].Kind, CalcKeyKind::kDigit);
  EXPECT_EQ(parse.Keys[1].Digit, 2);
  EXPECT_EQ(parse.Keys[2].Kind, CalcKeyKind::kPoint);
  EXPECT_EQ(parse.Keys[4].Op, 'X');
  EXPECT_EQ(parse.Keys[6].Op, '=');
  EXPECT_EQ(parse.Keys[7].Function, CalcFunction::kSquareRoot);
  EXPECT_EQ(parse.Keys[8].Kind, CalcKeyKind::kCancelEntry);
  EXPECT_EQ(parse.Keys[9].Kind, CalcKeyKind::kCancel);
  EXPECT_EQ(parse.Keys[10].Function, CalcFunction::kReciprocal);
  EXPECT_EQ(parse.Keys[10].Text, "1/x");
}

TEST(CalculatorKeys, AnExpressionIsASequenceOfKeys) {
  EXPECT_EQ(Press("2+3*4="), "20.");
  EXPECT_EQ(Press("2 + 3 X 4 ="), "20.");
  EXPECT_EQ(Press("5X-3="), "-15.");
  EXPECT_EQ(Press("200 + 10 % ="), "20.");
  EXPECT_EQ(Press("0.1 JC"), "0.1073256327305");  // -(3/4) ln(1 - 0.4/3) = 0.10732563273050...
  EXPECT_EQ(Press("50 a1 x^2 ln"), Press("50 a1 x^2 LN"));
  EXPECT_EQ(Press("2,5 X 2 =", ','), "5,");
}

TEST(CalculatorKeys, FailuresAreToldAndTheKeysGoOn) {
  EXPECT_EQ(Press("8 / 0 = CE 2 ="), "4.[Can't divide by zero]");
  EXPECT_EQ(Press("32768 a1"), "32768.[Can't compute values higher than 32767]");
}

TEST(CalculatorKeys, AnUnknownWordStopsTheParse) {
  const CalcKeyParse parse = ParseCalculatorKeys("2 + three =");
  EXPECT_EQ(parse.BadWord, "three");
  EXPECT_TRUE(parse.Keys.empty());
  EXPECT_EQ(ParseCalculatorKeys("2^2").BadWord, "2^2");
}

TEST(CalculatorKeys, BlanksAlone) {
  const CalcKeyParse parse = ParseCalculatorKeys("   ");
  EXPECT_TRUE(parse.Keys.empty());
  EXPECT_EQ(parse.BadWord, "");
}

}  // namespace
}  // namespace ovelt

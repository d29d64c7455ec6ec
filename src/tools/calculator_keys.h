#pragma once
// Keys of the "Evolutionary Calculator" written as text, so that a key sequence can drive the
// engine without a window: "12.5 X 2 =", "0.1 JC", "50 a1".
//
// The text is split at blanks. A word that names a key stands for it (case is ignored): "C",
// "CE", "a1", "a2", "1/x", "JC", "ln", "sqrt", "x^2". Any other word is read one character at a
// time: digits, the point ("." or the locale's ","), "+", "-", "X" (or "x", "*"), "/", "=" and
// "%"; so "2+3=" is four keys.

#include <string>
#include <string_view>
#include <vector>

#include "tools/calculator.h"

namespace ovelt {

enum class CalcKeyKind { kDigit, kPoint, kOperator, kPercent, kCancelEntry, kCancel, kFunction };

struct CalcKey {
  CalcKeyKind Kind = CalcKeyKind::kDigit;
  int Digit = 0;
  char Op = ' ';  // '+', '-', 'X', '/', '='
  CalcFunction Function = CalcFunction::kA1;
  std::string Text;  // as written

  friend bool operator==(const CalcKey&, const CalcKey&) = default;
};

struct CalcKeyParse {
  std::vector<CalcKey> Keys;
  std::string BadWord;  // the first word that holds no key; empty when all were read
};

[[nodiscard]] CalcKeyParse ParseCalculatorKeys(std::string_view text);

// Presses one key; the failure of the key's box, if any.
CalcOutcome PressKey(Calculator& calculator, const CalcKey& key);

}  // namespace ovelt

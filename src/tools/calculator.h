#pragma once
// The "Evolutionary Calculator": a four-function chained pocket calculator with the function
// keys of calculator_functions.h, fed one key at a time by its window (or by a key sequence).
//
// Chaining: an operator key applies the pending operator to the accumulator and the value on
// the display, shows the result and keeps the new operator; "=" ends the chain, and a number
// typed after it begins a new one. "-" where a number is expected (at the start, or right after
// "+", "-", "X" or "/") is the sign of the number that follows. "%" divides the display by 100
// and leaves "%" pending, so that the next operator key multiplies the accumulator by it: the
// percent of the accumulator.
//
// A key that fails returns the message of its box and changes nothing: the display stays as it
// was. Results are kept at full precision; the display shows them through CalculatorDisplay.

#include <optional>
#include <string>

#include "tools/calculator_functions.h"
#include "tools/tool_message.h"

namespace ovelt {

// What the last key was. Digits and the point are "NUMS", and so is a value that a function key
// or "CE" left on the display: it is an operand the next operator counts.
enum class LastInput { kNone, kNeg, kNums, kOps, kEquals };

// "NONE", "NEG", "NUMS", "Ops" or "=".
[[nodiscard]] const char* LastInputText(LastInput last);

using CalcOutcome = std::optional<ToolMessage>;

class Calculator {
 public:
  // `decimal_separator`: the point of the system's locale, '.' or ','.
  explicit Calculator(char decimal_separator = '.');

  // A digit 0..9 (others are ignored). A new number follows an operator or a function key.
  void Number(int digit);
  // The point: "0." starts a fraction, "-0." after a lone sign.
  void Decimal();
  // '+', '-', 'X', '/' or '=' (others are ignored). Fails on division by zero ("Can't divide by
  // zero", title "Calculator") and on a result that is not a finite number ("Error").
  CalcOutcome Operator(char op);
  CalcOutcome Percent();
  // CE: the entry back to "0."; the chain stays.
  void CancelEntry();
  // C: everything back to the start.
  void Cancel();

  // The function keys; each does nothing while the last input is a lone sign.
  CalcOutcome BotonA1() { return Function(CalcFunction::kA1); }
  CalcOutcome BotonA2() { return Function(CalcFunction::kA2); }
  CalcOutcome Inverso() { return Function(CalcFunction::kReciprocal); }
  CalcOutcome JukesAndCantor() { return Function(CalcFunction::kJukesCantor); }
  CalcOutcome Logaritmo() { return Function(CalcFunction::kLn); }
  CalcOutcome RaizCuadrada() { return Function(CalcFunction::kSquareRoot); }
  CalcOutcome Xcuadrado() { return Function(CalcFunction::kSquare); }
  CalcOutcome Function(CalcFunction function);

  // The display, with the locale's point.
  [[nodiscard]] std::string Readout() const;
  [[nodiscard]] double Accumulator() const { return accumulator_; }
  // ' ' when no operator is pending.
  [[nodiscard]] char PendingOperator() const { return pending_; }
  [[nodiscard]] LastInput Last() const { return last_; }

 private:
  // The number being typed: sign, digits before and after the point.
  struct Entry {
    bool typing = false;  // digits append to it
    bool negative = false;
    bool point = false;
    std::string whole;
    std::string fraction;
  };

  // The value on the display: a typed entry read back (CalcCambioComa, then the number), or the
  // value a key left there. "Error" when a typed entry is no finite number.
  [[nodiscard]] std::optional<double> DisplayValue() const;
  void ShowEntry();
  void ShowValue(double value);
  void ShowLoneSign();
  void StartEntry();

  char separator_;
  std::string readout_;      // as shown, with the locale's point
  double value_ = 0;         // the value of a computed display
  bool shows_value_ = true;  // the display holds value_ (else a typed entry or a lone sign)
  Entry entry_;
  double accumulator_ = 0;
  char pending_ = ' ';
  int operands_ = 0;  // operands held in the chain: 0, 1 (the accumulator) or 2 (and the display)
  LastInput last_ = LastInput::kNone;
};

}  // namespace ovelt

#include "tools/calculator.h"

#include <algorithm>
#include <cmath>

#include "tools/calculator_display.h"
#include "tools/typed_value.h"

namespace ovelt {
namespace {

bool IsArithmetic(char op) { return op == '+' || op == '-' || op == 'X' || op == '/'; }

ToolMessage ErrorMessage() { return ToolMessage{kCalcErrorText}; }

}  // namespace

const char* LastInputText(LastInput last) {
  switch (last) {
    case LastInput::kNone:
      return "NONE";
    case LastInput::kNeg:
      return "NEG";
    case LastInput::kNums:
      return "NUMS";
    case LastInput::kOps:
      return "Ops";
    case LastInput::kEquals:
      return "=";
  }
  return "";
}

Calculator::Calculator(char decimal_separator) : separator_(decimal_separator) { Cancel(); }

void Calculator::Cancel() {
  entry_ = {};
  accumulator_ = 0;
  pending_ = ' ';
  operands_ = 0;
  last_ = LastInput::kNone;
  ShowValue(0);
}

void Calculator::CancelEntry() {
  // A typed zero: the next digit replaces it, the next operator takes it as the operand.
  entry_ = {};
  entry_.typing = true;
  last_ = LastInput::kNums;
  ShowEntry();
}

void Calculator::StartEntry() {
  entry_ = {};
  entry_.typing = true;
  entry_.negative = last_ == LastInput::kNeg;
}

void Calculator::Number(int digit) {
  if (digit < 0 || digit > 9) return;
  if (!entry_.typing) StartEntry();
  const char c = static_cast<char>('0' + digit);
  if (entry_.point) {
    entry_.fraction += c;
  } else if (entry_.whole.empty() || entry_.whole == "0") {
    entry_.whole = std::string(1, c);  // no leading zeros
  } else {
    entry_.whole += c;
  }
  last_ = LastInput::kNums;
  ShowEntry();
}

void Calculator::Decimal() {
  if (!entry_.typing) StartEntry();
  entry_.point = true;
  last_ = LastInput::kNums;
  ShowEntry();
}

CalcOutcome Calculator::Operator(char op) {
  if (op != '=' && !IsArithmetic(op)) return std::nullopt;
  if (last_ == LastInput::kNeg) return std::nullopt;  // a sign waits for its number

  const int operands = last_ == LastInput::kNums ? std::min(operands_ + 1, 2) : operands_;
  if (operands == 0 && op == '-') {
    ShowLoneSign();
    return std::nullopt;
  }
  if (operands == 1) {
    if (op == '-' && last_ == LastInput::kOps && IsArithmetic(pending_)) {
      ShowLoneSign();
      return std::nullopt;
    }
    const auto x = DisplayValue();
    if (!x) return ErrorMessage();
    accumulator_ = *x;
  }
  if (operands == 2) {
    const auto x = DisplayValue();
    if (!x) return ErrorMessage();
    double result = *x;
    switch (pending_) {
      case '+':
        result = accumulator_ + *x;
        break;
      case '-':
        result = accumulator_ - *x;
        break;
      case 'X':
        result = accumulator_ * *x;
        break;
      case '/':
        if (*x == 0) return ToolMessage{kCalcDivideByZeroText, kCalcDivideByZeroTitle};
        result = accumulator_ / *x;
        break;
      case '%':
        result = accumulator_ * *x;
        break;
      default:
        break;  // "=": a new chain begins with the value on the display
    }
    if (!std::isfinite(result)) return ErrorMessage();
    accumulator_ = result;
    ShowValue(result);
  }
  operands_ = std::min(operands, 1);
  entry_.typing = false;
  pending_ = op;
  last_ = op == '=' ? LastInput::kEquals : LastInput::kOps;
  return std::nullopt;
}

CalcOutcome Calculator::Percent() {
  if (last_ == LastInput::kNeg) return std::nullopt;
  const auto x = DisplayValue();
  if (!x) return ErrorMessage();
  const double percent = *x / 100;
  // With no operand yet, the percent itself is the first one.
  if (operands_ == 0) accumulator_ = percent;
  operands_ = std::min(operands_ + 1, 2);
  ShowValue(percent);
  entry_.typing = false;
  pending_ = '%';
  last_ = LastInput::kOps;
  return std::nullopt;
}

CalcOutcome Calculator::Function(CalcFunction function) {
  if (last_ == LastInput::kNeg) return std::nullopt;
  const auto x = DisplayValue();
  if (!x) return ErrorMessage();
  const CalcFunctionOutcome outcome = ApplyCalcFunction(function, *x);
  if (outcome.Failure) return outcome.Failure;
  ShowValue(outcome.Value);
  entry_.typing = false;
  last_ = LastInput::kNums;
  return std::nullopt;
}

std::string Calculator::Readout() const { return readout_; }

std::optional<double> Calculator::DisplayValue() const {
  if (shows_value_) return value_;
  const TypedValue typed = ReadTypedValue(CalcCambioComa(readout_));
  if (typed.Status != TypedStatus::kNumber) return std::nullopt;
  return typed.Value;
}

void Calculator::ShowEntry() {
  readout_ = (entry_.negative ? "-" : "") + (entry_.whole.empty() ? "0" : entry_.whole) +
             separator_ + entry_.fraction;
  shows_value_ = false;
}

void Calculator::ShowValue(double value) {
  value_ = value;
  shows_value_ = true;
  readout_ = CalculatorDisplay(value, separator_);
}

void Calculator::ShowLoneSign() {
  entry_ = {};
  readout_ = "-";
  shows_value_ = false;
  last_ = LastInput::kNeg;
}

}  // namespace ovelt

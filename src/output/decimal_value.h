#pragma once
// A number as the decimal digits that reports print from. A Double is taken with 15 significant
// digits and a Single with 7, as Visual Basic converts them before any mask is applied; rounding
// then works on these digits, so that 1.005 (stored as 1.00499999999999989...) still rounds to
// "1.01" at two decimals, as the user who typed 1.005 expects.

#include <cstdint>
#include <string>

namespace ovelt {

struct DecimalValue {
  bool Negative = false;  // keeps the sign of a negative value that rounds to zero
  std::string Digits;     // significant digits, no leading or trailing zeros; empty for zero
  int Exponent = 0;       // the first digit stands for Digits[0] * 10^Exponent

  [[nodiscard]] bool IsZero() const { return Digits.empty(); }

  // The digit at the place 10^place ('0' outside the stored digits).
  [[nodiscard]] char DigitAt(int place) const;
};

// `significant` digits of a finite double, rounded to nearest from its exact binary value.
[[nodiscard]] DecimalValue DecimalFromDouble(double value, int significant);

// All digits of an integer.
[[nodiscard]] DecimalValue DecimalFromInteger(int64_t value);

// Rounds half away from zero so that no digit is left below the place 10^-decimals.
[[nodiscard]] DecimalValue RoundAtDecimals(const DecimalValue& value, int decimals);

// Rounds half away from zero to at most `significant` significant digits.
[[nodiscard]] DecimalValue RoundToSignificant(const DecimalValue& value, int significant);

}  // namespace ovelt

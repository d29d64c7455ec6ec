#pragma once
// Digit masks of the Visual Basic `Format` convention: "0", "0.00000", "00", "0.####",
// "0.000000E+00". A "0" always prints a digit, a "#" only a significant one; the point is printed
// whenever the mask has one, even with no decimals after it ("0.##" gives "5." for 5), as the
// classic runtime did.

#include <optional>
#include <string>
#include <string_view>

#include "output/decimal_value.h"

namespace ovelt {

struct NumberMask {
  int MinIntegerDigits = 0;   // count of "0" before the point
  int IntegerPlaces = 0;      // count of "0" and "#" before the point
  bool HasPoint = false;
  int MinDecimals = 0;        // count of "0" after the point
  int MaxDecimals = 0;        // count of "0" and "#" after the point
  bool Scientific = false;    // an "E+00" / "E-00" part follows
  bool ExponentAlwaysSigned = false;  // "E+": the sign is printed for positive exponents too
  char ExponentLetter = 'E';
  int MinExponentDigits = 0;
};

// nullopt when the text is not a digit mask.
[[nodiscard]] std::optional<NumberMask> ParseNumberMask(std::string_view mask);

// Applies the mask to a decimal value (already taken at 15 or 7 significant digits).
[[nodiscard]] std::string ApplyNumberMask(const DecimalValue& value, const NumberMask& mask);

}  // namespace ovelt

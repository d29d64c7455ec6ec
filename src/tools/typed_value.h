#pragma once
// A number typed into a box of a calculator window. The user may type a decimal comma, as the
// locale may show one; it is read as a point. Blanks around the number are ignored.

#include <string>
#include <string_view>

namespace ovelt {

enum class TypedStatus {
  kNumber,      // Value holds the number
  kMissing,     // the box is empty (or holds blanks only)
  kNotANumber,  // anything else: letters, two points, a number beyond the range of a double
};

struct TypedValue {
  TypedStatus Status = TypedStatus::kMissing;
  double Value = 0.0;
};

// The text with every comma turned into a point, so that "0,25" reads as 0.25.
[[nodiscard]] std::string CalcCambioComa(std::string_view text);

// Reads an optionally signed decimal number with an optional exponent ("12", "-0.5", ".5",
// "2,5", "1e3").
[[nodiscard]] TypedValue ReadTypedValue(std::string_view text);

// True for a finite value without a fractional part: what a box of counts accepts.
[[nodiscard]] bool IsWholeNumber(double value);

}  // namespace ovelt

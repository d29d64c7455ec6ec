#include "output/number_mask.h"

#include <algorithm>

namespace ovelt {
namespace {

bool IsDigitPlace(char c) { return c == '0' || c == '#'; }

std::string FixedText(const DecimalValue& rounded, const NumberMask& mask) {
  std::string integer_part;
  if (!rounded.IsZero()) {
    for (int place = rounded.Exponent; place >= 0; --place) {
      integer_part.push_back(rounded.DigitAt(place));
    }
  }
  if (static_cast<int>(integer_part.size()) < mask.MinIntegerDigits) {
    integer_part.insert(0, static_cast<size_t>(mask.MinIntegerDigits) - integer_part.size(), '0');
  }
  std::string fraction;
  for (int place = -1; place >= -mask.MaxDecimals; --place) fraction.push_back(rounded.DigitAt(place));
  while (static_cast<int>(fraction.size()) > mask.MinDecimals && fraction.back() == '0') {
    fraction.pop_back();
  }
  std::string text = integer_part;
  if (mask.HasPoint) text += "." + fraction;
  return text;
}

std::string ScientificText(const DecimalValue& value, const NumberMask& mask) {
  const int integer_digits = std::max(1, mask.IntegerPlaces);
  DecimalValue rounded = RoundToSignificant(value, integer_digits + mask.MaxDecimals);
  int exponent = 0;
  if (!rounded.IsZero()) {
    // Shift so that `integer_digits` digits stand before the point.
    exponent = rounded.Exponent - (integer_digits - 1);
    rounded.Exponent = integer_digits - 1;
  }
  NumberMask fixed = mask;
  fixed.MinIntegerDigits = std::max(1, mask.MinIntegerDigits);
  std::string text = FixedText(rounded, fixed);
  text.push_back(mask.ExponentLetter);
  if (exponent < 0) {
    text.push_back('-');
  } else if (mask.ExponentAlwaysSigned) {
    text.push_back('+');
  }
  std::string digits = std::to_string(exponent < 0 ? -exponent : exponent);
  if (static_cast<int>(digits.size()) < mask.MinExponentDigits) {
    digits.insert(0, static_cast<size_t>(mask.MinExponentDigits) - digits.size(), '0');
  }
  return text + digits;
}

}  // namespace

std::optional<NumberMask> ParseNumberMask(std::string_view mask) {
  NumberMask out;
  size_t i = 0;
  while (i < mask.size() && IsDigitPlace(mask[i])) {
    ++out.IntegerPlaces;
    if (mask[i] == '0') ++out.MinIntegerDigits;
    ++i;
  }
  if (i < mask.size() && mask[i] == '.') {
    out.HasPoint = true;
    ++i;
    while (i < mask.size() && IsDigitPlace(mask[i])) {
      ++out.MaxDecimals;
      // A "0" after a "#" still prints: the required decimals reach to the last "0".
      if (mask[i] == '0') out.MinDecimals = out.MaxDecimals;
      ++i;
    }
  }
  if (out.IntegerPlaces == 0 && out.MaxDecimals == 0) return std::nullopt;
  if (i < mask.size() && (mask[i] == 'E' || mask[i] == 'e')) {
    out.Scientific = true;
    out.ExponentLetter = mask[i];
    ++i;
    if (i >= mask.size() || (mask[i] != '+' && mask[i] != '-')) return std::nullopt;
    out.ExponentAlwaysSigned = mask[i] == '+';
    ++i;
    while (i < mask.size() && IsDigitPlace(mask[i])) {
      ++out.MinExponentDigits;
      ++i;
    }
    if (out.MinExponentDigits == 0) return std::nullopt;
  }
  if (i != mask.size()) return std::nullopt;
  return out;
}

std::string ApplyNumberMask(const DecimalValue& value, const NumberMask& mask) {
  std::string body = mask.Scientific ? ScientificText(value, mask)
                                     : FixedText(RoundAtDecimals(value, mask.MaxDecimals), mask);
  // A negative value keeps its "-" even when it rounds to zero ("-0.00").
  return value.Negative ? "-" + body : body;
}

}  // namespace ovelt

#include "output/decimal_value.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace ovelt {
namespace {

void StripTrailingZeros(DecimalValue& value) {
  while (!value.Digits.empty() && value.Digits.back() == '0') value.Digits.pop_back();
  if (value.Digits.empty()) value.Exponent = 0;
}

// Keeps the first `keep` digits, rounding half away from zero on the digit after them.
DecimalValue KeepDigits(const DecimalValue& value, int keep) {
  DecimalValue out = value;
  const int length = static_cast<int>(value.Digits.size());
  if (keep >= length) return out;
  if (keep < 0) {  // the first digit lies at least two places below the last kept place
    out.Digits.clear();
    out.Exponent = 0;
    return out;
  }
  const bool round_up = value.Digits[static_cast<size_t>(keep)] >= '5';
  out.Digits.resize(static_cast<size_t>(keep));
  if (round_up) {
    int i = keep - 1;
    while (i >= 0 && out.Digits[static_cast<size_t>(i)] == '9') {
      out.Digits[static_cast<size_t>(i)] = '0';
      --i;
    }
    if (i >= 0) {
      ++out.Digits[static_cast<size_t>(i)];
    } else {
      // All kept digits were nines (or none were kept): the carry opens a new leading digit.
      out.Digits.insert(out.Digits.begin(), '1');
      ++out.Exponent;
    }
  }
  StripTrailingZeros(out);
  return out;
}

}  // namespace

char DecimalValue::DigitAt(int place) const {
  const int index = Exponent - place;
  if (index < 0 || index >= static_cast<int>(Digits.size())) return '0';
  return Digits[static_cast<size_t>(index)];
}

DecimalValue DecimalFromDouble(double value, int significant) {
  DecimalValue out;
  out.Negative = value < 0.0;  // an exact -0.0 is not negative
  if (value == 0.0 || !std::isfinite(value)) return out;
  // "%.*e" gives the correctly rounded leading digits of the exact binary value.
  char text[64];
  std::snprintf(text, sizeof text, "%.*e", significant - 1, std::fabs(value));
  for (const char* p = text; *p != '\0' && *p != 'e'; ++p) {
    if (*p >= '0' && *p <= '9') out.Digits.push_back(*p);
  }
  const char* e = text;
  while (*e != '\0' && *e != 'e') ++e;
  out.Exponent = (*e == 'e') ? std::atoi(e + 1) : 0;
  StripTrailingZeros(out);
  return out;
}

DecimalValue DecimalFromInteger(int64_t value) {
  DecimalValue out;
  out.Negative = value < 0;
  // Through unsigned arithmetic so that the most negative value has a magnitude too.
  uint64_t magnitude = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
  std::string reversed;
  while (magnitude > 0) {
    reversed.push_back(static_cast<char>('0' + magnitude % 10));
    magnitude /= 10;
  }
  out.Digits.assign(reversed.rbegin(), reversed.rend());
  out.Exponent = static_cast<int>(out.Digits.size()) - 1;
  StripTrailingZeros(out);
  return out;
}

DecimalValue RoundAtDecimals(const DecimalValue& value, int decimals) {
  if (value.IsZero()) return value;
  // Digit i stands at the place 10^(Exponent - i); keep the places down to 10^-decimals.
  return KeepDigits(value, value.Exponent + decimals + 1);
}

DecimalValue RoundToSignificant(const DecimalValue& value, int significant) {
  if (value.IsZero()) return value;
  return KeepDigits(value, significant);
}

}  // namespace ovelt

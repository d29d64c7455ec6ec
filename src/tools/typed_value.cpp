#include "tools/typed_value.h"

#include <cctype>
#include <charconv>
#include <cmath>

namespace ovelt {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// The plain form the reader accepts: sign, digits with at most one point (at least one digit),
// then an optional exponent with its own digits.
bool IsPlainNumber(std::string_view s) {
  size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  int mantissa_digits = 0;
  bool point = false;
  for (; i < s.size(); ++i) {
    if (IsDigit(s[i])) {
      ++mantissa_digits;
    } else if (s[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (mantissa_digits == 0) return false;
  if (i == s.size()) return true;
  if (s[i] != 'e' && s[i] != 'E') return false;
  ++i;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  int exponent_digits = 0;
  for (; i < s.size() && IsDigit(s[i]); ++i) ++exponent_digits;
  return exponent_digits > 0 && i == s.size();
}

}  // namespace

std::string CalcCambioComa(std::string_view text) {
  std::string plain(text);
  for (char& c : plain)
    if (c == ',') c = '.';
  return plain;
}

TypedValue ReadTypedValue(std::string_view text) {
  size_t first = 0;
  size_t last = text.size();
  while (first < last && IsBlank(text[first])) ++first;
  while (last > first && IsBlank(text[last - 1])) --last;
  if (first == last) return {TypedStatus::kMissing, 0.0};

  std::string number = CalcCambioComa(text.substr(first, last - first));
  if (!IsPlainNumber(number)) return {TypedStatus::kNotANumber, 0.0};
  // from_chars takes no leading '+', and reads the same in every locale.
  const size_t start = number[0] == '+' ? 1 : 0;
  double value = 0.0;
  const auto [end, error] =
      std::from_chars(number.data() + start, number.data() + number.size(), value);
  if (error != std::errc() || end != number.data() + number.size() || !std::isfinite(value))
    return {TypedStatus::kNotANumber, 0.0};
  return {TypedStatus::kNumber, value};
}

bool IsWholeNumber(double value) { return std::isfinite(value) && std::floor(value) == value; }

}  // namespace ovelt

#include "output/format_mask.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "output/date_mask.h"
#include "output/decimal_value.h"
#include "output/number_mask.h"

namespace ovelt {
namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;
constexpr const char* kNotDetermined = "n.d.";

[[noreturn]] void UnknownMask(std::string_view mask) {
  throw std::invalid_argument(std::string("Unknown Format mask: \"").append(mask) + "\"");
}

// "%.<digits>G" of a value already held at `digits` significant digits.
std::string GeneralText(const DecimalValue& value, int digits) {
  if (value.IsZero()) return "0";
  std::string text = value.Negative ? "-" : "";
  const std::string& d = value.Digits;
  if (value.Exponent < -4 || value.Exponent >= digits) {
    text.push_back(d[0]);
    if (d.size() > 1) text.append(".").append(d, 1);
    const int magnitude = value.Exponent < 0 ? -value.Exponent : value.Exponent;
    text += value.Exponent < 0 ? "E-" : "E+";
    if (magnitude < 10) text.push_back('0');
    return text + std::to_string(magnitude);
  }
  if (value.Exponent < 0) {
    return text + "0." + std::string(static_cast<size_t>(-value.Exponent - 1), '0') + d;
  }
  const auto integer_length = static_cast<size_t>(value.Exponent) + 1;
  if (d.size() <= integer_length) return text + d + std::string(integer_length - d.size(), '0');
  return text + d.substr(0, integer_length) + "." + d.substr(integer_length);
}

bool IsRightAlignedTextMask(std::string_view mask) {
  return !mask.empty() && mask.find_first_not_of('@') == std::string_view::npos;
}

bool IsLeftAlignedTextMask(std::string_view mask) {
  return mask.size() >= 2 && mask[0] == '!' && IsRightAlignedTextMask(mask.substr(1));
}

// The "@" and "!" masks over a finished text; nullopt for any other mask.
std::optional<std::string> ApplyTextMask(std::string_view text, std::string_view mask) {
  if (IsRightAlignedTextMask(mask)) {
    std::string out(text);
    if (out.size() < mask.size()) out.insert(0, mask.size() - out.size(), ' ');
    return out;
  }
  if (IsLeftAlignedTextMask(mask)) {
    const size_t width = mask.size() - 1;
    std::string out(text.substr(0, width));
    out.append(width - out.size(), ' ');
    return out;
  }
  if (mask.empty()) return std::string(text);
  return std::nullopt;
}

// A number already taken as its decimal value, under any mask but a date.
std::string FormatDecimal(const DecimalValue& value, int digits, std::string_view mask) {
  if (auto text = ApplyTextMask(GeneralText(value, digits), mask)) return *text;
  if (const auto number_mask = ParseNumberMask(mask)) return ApplyNumberMask(value, *number_mask);
  UnknownMask(mask);
}

std::string FormatNotFinite(std::string_view mask) {
  if (auto text = ApplyTextMask(kNotDetermined, mask)) return *text;
  if (ParseNumberMask(mask)) return kNotDetermined;
  UnknownMask(mask);
}

}  // namespace

std::string NumberText(double value) {
  if (!std::isfinite(value)) return kNotDetermined;
  return GeneralText(DecimalFromDouble(value, kDoubleDigits), kDoubleDigits);
}

std::string NumberText(float value) {
  if (!std::isfinite(value)) return kNotDetermined;
  return GeneralText(DecimalFromDouble(static_cast<double>(value), kSingleDigits), kSingleDigits);
}

std::string NumberText(int64_t value) {
  const DecimalValue decimal = DecimalFromInteger(value);
  // Every digit of an integer prints, however long.
  return GeneralText(decimal, static_cast<int>(decimal.Exponent) + 1);
}

std::string Format(double value, std::string_view mask) {
  if (!std::isfinite(value)) return FormatNotFinite(mask);
  return FormatDecimal(DecimalFromDouble(value, kDoubleDigits), kDoubleDigits, mask);
}

std::string Format(float value, std::string_view mask) {
  if (!std::isfinite(value)) return FormatNotFinite(mask);
  return FormatDecimal(DecimalFromDouble(static_cast<double>(value), kSingleDigits),
                       kSingleDigits, mask);
}

std::string Format(int64_t value, std::string_view mask) {
  if (auto text = ApplyTextMask(NumberText(value), mask)) return *text;
  if (const auto number_mask = ParseNumberMask(mask)) {
    return ApplyNumberMask(DecimalFromInteger(value), *number_mask);
  }
  UnknownMask(mask);
}

std::string Format(std::string_view text, std::string_view mask) {
  if (auto out = ApplyTextMask(text, mask)) return *out;
  if (ParseNumberMask(mask)) {
    // A text that reads whole as a number takes the digit mask, as Visual Basic coerces it.
    const std::string copy(text);
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(copy.c_str(), &end);
    while (end != nullptr && *end == ' ') ++end;
    const bool numeric = end != copy.c_str() && end != nullptr && *end == '\0' && errno == 0;
    return numeric ? Format(value, mask) : copy;
  }
  if (ApplyDateMask(Platform::DateTime{}, mask)) return std::string(text);
  UnknownMask(mask);
}

std::string Format(const Platform::DateTime& when, std::string_view mask) {
  if (auto text = ApplyDateMask(when, mask)) return *text;
  UnknownMask(mask);
}

std::string StrNum(int64_t value) { return NumberText(value); }
std::string StrNum(double value) { return NumberText(value); }
std::string StrNum(float value) { return NumberText(value); }

}  // namespace ovelt

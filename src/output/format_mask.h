#pragma once
// The `Format` convention of the reports: every printed number goes through one of these masks so
// that columns line up and digits agree with the classic Visual Basic runtime.
//
//   "0", "0.00000", "00", "0.####", "0.000000E+00"  digits, rounded half away from zero on the
//        decimal value (15 significant digits of a Double, 7 of a Single); "-" for negatives, kept
//        when a negative value rounds to zero ("-0.00"); an exact -0.0 prints without sign.
//   "@@@@@"               the value as text (NumberText), padded on the left to the count of "@";
//                          a longer text stays whole.
//   "!@@@@@@@@@@@@@@@@@"  left-aligned, padded on the right to the count of "@", cut when longer.
//   "dd - mmmm - yyyy", "hh:mm:ss"  dates and times (see date_mask.h).
//   ""                    the value as text.
//
// A mask outside these forms is a programming error: std::invalid_argument. Values that are not
// finite (NaN, infinities) print as "n.d.", the reports' word for a value not determined.

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace ovelt {

// Visual Basic's CStr of a number, the text an unmasked number prints as: the shortest text of
// 15 significant digits for a Double (7 for a Single), no trailing zeros, no point for integers,
// a leading zero below 1 ("0.5"). It follows C's "%.15G" ("%.7G" for a Single), as the OLE
// conversion behind CStr does: E notation when the decimal exponent is below -4 or at least the
// digit count ("1E+15", "1.5E-07", "1E+07" for a Single), with a signed exponent of at least two
// digits.
[[nodiscard]] std::string NumberText(double value);
[[nodiscard]] std::string NumberText(float value);
[[nodiscard]] std::string NumberText(int64_t value);

[[nodiscard]] std::string Format(double value, std::string_view mask);
[[nodiscard]] std::string Format(float value, std::string_view mask);
[[nodiscard]] std::string Format(int64_t value, std::string_view mask);
// Counters of any width (16-bit, 32-bit). Unsigned values above the range of int64_t are not used
// by the reports.
template <std::integral T>
  requires(!std::same_as<T, bool>)
[[nodiscard]] std::string Format(T value, std::string_view mask) {
  return Format(static_cast<int64_t>(value), mask);
}
// Texts take the "@" and "!" masks; a numeric text under a digit mask is read as a number, any
// other text is returned as it stands.
[[nodiscard]] std::string Format(std::string_view text, std::string_view mask);
[[nodiscard]] std::string Format(const Platform::DateTime& when, std::string_view mask);

// A number concatenated without a mask ("Number of sequences: " & n): no blank before it.
[[nodiscard]] std::string StrNum(int64_t value);
template <std::integral T>
  requires(!std::same_as<T, bool>)
[[nodiscard]] std::string StrNum(T value) {
  return StrNum(static_cast<int64_t>(value));
}
[[nodiscard]] std::string StrNum(double value);
[[nodiscard]] std::string StrNum(float value);

}  // namespace ovelt

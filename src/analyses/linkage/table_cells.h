#pragma once
// The number cells of the pair table, made without the general mask machinery: a table of two
// million pairs formats eight numbers a row. Each gives the text that `Format` gives with the
// same mask ("0.000", "@@@@@"), and falls back to `Format` itself where the quick way could
// disagree (a value too close to a rounding half, a large or non-finite value).

#include <cstdint>
#include <string>

namespace ovelt {

// Format(value, "0.000"): a Double rounds on its 15 significant digits, a Single on its 7.
[[nodiscard]] std::string ThreeDecimals(double value);
[[nodiscard]] std::string ThreeDecimals(float value);

// Format(value, "@@@@@"): the integer right-aligned in five places (a longer one whole).
[[nodiscard]] std::string RightAlignedFive(int32_t value);

}  // namespace ovelt

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

// The same cells appended to a line under construction, with no string of their own: the pair
// file writes two million lines. `signed_blank` puts a blank before a value that is not
// negative, so that it lines up with negative ones.
void AppendThreeDecimals(std::string& line, double value, bool signed_blank = false);
void AppendThreeDecimals(std::string& line, float value);
void AppendRightAlignedFive(std::string& line, int32_t value);

}  // namespace ovelt

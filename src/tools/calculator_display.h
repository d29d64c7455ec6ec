#pragma once
// What the display of the "Evolutionary Calculator" shows for a value x, with a = |x|:
// "0." for 0; the mask "0.#############" (plain digits, up to 13 decimals, the point always
// shown) when 1e-11 <= a <= 1e11; otherwise the exponent mask "0.000000E+00".
// The point is the one of the system's locale: `decimal_separator` ('.' or ',').

#include <string>

namespace ovelt {

[[nodiscard]] std::string CalculatorDisplay(double value, char decimal_separator = '.');

}  // namespace ovelt

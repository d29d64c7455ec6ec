#include "tools/calculator_display.h"

#include <cmath>

#include "output/format_mask.h"

namespace ovelt {

std::string CalculatorDisplay(double value, char decimal_separator) {
  const double a = std::fabs(value);
  std::string text;
  if (a == 0) {
    text = "0.";
  } else if (a <= 1e11 && a >= 1e-11) {
    text = Format(value, "0.#############");
  } else {
    text = Format(value, "0.000000E+00");
  }
  for (char& c : text)
    if (c == '.') c = decimal_separator;
  return text;
}

}  // namespace ovelt

#pragma once
// Significance marks of a test statistic or of a P value. Values and bounds are compared as
// 32-bit floats, so a value equal to a bound as printed takes the bound's mark.

#include <string>

namespace ovelt {

// Chi-square with one degree of freedom against its critical values at P = 0.05, 0.01, 0.001
// (3.841, 6.635, 10.828): "***", "** ", "*  " or three blanks. 3.841 itself is not significant.
[[nodiscard]] std::string ChiMark(double x);

// A P value: "***", "**", "*" or "  (not significant)".
[[nodiscard]] std::string PMarkText(double p);

// A P value, short form: " ***", " **", " *" or " ns".
[[nodiscard]] std::string PMarkShort(double p);

}  // namespace ovelt

#pragma once
// The function keys of the "Evolutionary Calculator", applied to the value x on the display:
//   a1   Watterson's (1975) a1 = sum of 1/i for i = 1 .. n - 1, n the integer part of x
//   a2   sum of 1/i^2 for i = 1 .. n - 1 (the a2 of Tajima 1989)
//   1/x, ln, square root, x^2
//   Jukes and Cantor (1969) distance -(3/4) ln(1 - 4x/3) of a proportion x of differences.
// A value outside a function's domain gets the function's own message (title "Ovelt"); a
// result that is not a finite number gets "Error".

#include <optional>

#include "tools/tool_message.h"

namespace ovelt {

enum class CalcFunction { kA1, kA2, kReciprocal, kJukesCantor, kLn, kSquareRoot, kSquare };

inline constexpr const char* kCalcNegativeText = "Can't compute Negative values";
inline constexpr const char* kCalcAbove32767Text = "Can't compute values higher than 32767";
inline constexpr const char* kCalcJukesCantorText =
    "Can't compute Jukes and Cantor for values equal or higher than 0.75";
inline constexpr const char* kCalcNotPositiveText = "Can't compute values equal or lower than 0";
inline constexpr const char* kCalcReciprocalZeroText = "Invalid selection";
inline constexpr const char* kCalcDivideByZeroText = "Can't divide by zero";
inline constexpr const char* kCalcDivideByZeroTitle = "Calculator";
inline constexpr const char* kCalcErrorText = "Error";

// The largest value a1 and a2 accept.
inline constexpr double kHarmonicLimit = 32767;

struct CalcFunctionOutcome {
  double Value = 0;
  std::optional<ToolMessage> Failure;  // set when nothing was computed
};

[[nodiscard]] CalcFunctionOutcome ApplyCalcFunction(CalcFunction function, double x);

}  // namespace ovelt

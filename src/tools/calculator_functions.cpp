#include "tools/calculator_functions.h"

#include <cmath>
#include <cstdint>

#include "stats/harmonic.h"

namespace ovelt {
namespace {

CalcFunctionOutcome Refuse(const char* text) { return {0, ToolMessage{text}}; }

double SumOfInverseSquares(int32_t n) {
  double sum = 0;
  for (int32_t i = 1; i < n; ++i) sum += 1.0 / (static_cast<double>(i) * i);
  return sum;
}

double Compute(CalcFunction function, double x) {
  switch (function) {
    case CalcFunction::kA1:
      return HarmonicA1Double(static_cast<int32_t>(std::floor(x)));
    case CalcFunction::kA2:
      return SumOfInverseSquares(static_cast<int32_t>(std::floor(x)));
    case CalcFunction::kReciprocal:
      return 1.0 / x;
    case CalcFunction::kJukesCantor:
      return -0.75 * std::log(1.0 - 4.0 * x / 3.0);
    case CalcFunction::kLn:
      return std::log(x);
    case CalcFunction::kSquareRoot:
      return std::sqrt(x);
    case CalcFunction::kSquare:
      return x * x;
  }
  return std::nan("");
}

}  // namespace

CalcFunctionOutcome ApplyCalcFunction(CalcFunction function, double x) {
  switch (function) {
    case CalcFunction::kA1:
    case CalcFunction::kA2:
      if (x < 0) return Refuse(kCalcNegativeText);
      if (x > kHarmonicLimit) return Refuse(kCalcAbove32767Text);
      break;
    case CalcFunction::kReciprocal:
      if (x == 0) return Refuse(kCalcReciprocalZeroText);
      break;
    case CalcFunction::kJukesCantor:
      if (x < 0) return Refuse(kCalcNegativeText);
      if (x >= 0.75) return Refuse(kCalcJukesCantorText);
      break;
    case CalcFunction::kLn:
      if (x <= 0) return Refuse(kCalcNotPositiveText);
      break;
    case CalcFunction::kSquareRoot:
      if (x < 0) return Refuse(kCalcNegativeText);
      break;
    case CalcFunction::kSquare:
      break;
  }
  const double value = Compute(function, x);
  if (!std::isfinite(value)) return Refuse(kCalcErrorText);
  return {value, std::nullopt};
}

}  // namespace ovelt

#include "tools/distribution_check.h"

#include <string>

#include "tools/distribution_messages.h"
#include "tools/typed_value.h"

namespace ovelt {
namespace {

// Reads a box: the refusal code of a box without a usable number, or nullopt with `value`.
std::optional<int16_t> ReadBox(const std::string& text, bool whole, double& value) {
  const TypedValue typed = ReadTypedValue(text);
  if (typed.Status == TypedStatus::kMissing) return kF20MissingData;
  if (typed.Status != TypedStatus::kNumber) return kF20InvalidNumber;
  if (whole && !IsWholeNumber(typed.Value)) return kF20InvalidNumber;
  value = typed.Value;
  return std::nullopt;
}

// A count is only narrowed once its range was checked, so a typed 1e30 never overflows.
int32_t Count(double value) { return static_cast<int32_t>(value); }

}  // namespace

std::optional<int16_t> CheckBinomial(const BinomialOptions& boxes, BinomialInput& input) {
  double p = 0, n = 0, k = 0;
  if (auto code = ReadBox(boxes.P, false, p)) return code;
  if (p <= 0) return kF20PAboveZero;
  if (p >= 1) return kF20PBelowOne;
  if (auto code = ReadBox(boxes.N, true, n)) return code;
  if (n < 1) return kF20TotalAboveZero;
  if (n >= kElementLimit) return kF20TotalBelowLimit;
  if (auto code = ReadBox(boxes.K, true, k)) return code;
  if (k < 0) return kF20NoNegativeCount;
  if (k > n) return kF20NotComputable;
  input = {p, Count(n), Count(k)};
  return std::nullopt;
}

std::optional<int16_t> CheckHypergeometric(const HypergeometricOptions& boxes,
                                           HypergeometricInput& input) {
  double population = 0, successes = 0, n = 0, k = 0;
  if (auto code = ReadBox(boxes.Population, true, population)) return code;
  if (population < 1) return kF20TotalAboveZero;
  if (population >= kElementLimit) return kF20TotalBelowLimit;
  if (auto code = ReadBox(boxes.Successes, true, successes)) return code;
  if (successes < 0) return kF20NoNegativeCount;
  if (successes > population) return kF20NotComputable;
  if (auto code = ReadBox(boxes.N, true, n)) return code;
  if (n < 1) return kF20TotalAboveZero;
  if (n > population) return kF20NotComputable;
  if (auto code = ReadBox(boxes.K, true, k)) return code;
  if (k < 0) return kF20NoNegativeCount;
  if (k > n || k > successes) return kF20NotComputable;
  input = {Count(population), Count(successes), Count(n), Count(k)};
  return std::nullopt;
}

std::optional<int16_t> CheckPoisson(const PoissonOptions& boxes, PoissonInput& input) {
  double lambda = 0, k = 0;
  if (auto code = ReadBox(boxes.Lambda, false, lambda)) return code;
  if (lambda <= 0) return kF20LambdaAboveZero;
  if (auto code = ReadBox(boxes.K, true, k)) return code;
  if (k < 0) return kF20NoNegativeCount;
  if (k >= kElementLimit) return kF20TotalBelowLimit;
  input = {lambda, Count(k)};
  return std::nullopt;
}

std::optional<int16_t> CheckEwens(const EwensOptions& boxes, EwensInput& input) {
  double n = 0, h = 0, theta = 0;
  if (auto code = ReadBox(boxes.SampleSize, true, n)) return code;
  if (n < 2) return kF20MinimumTwoSequences;
  if (n > kEwensSampleLimit) return kF20SampleTooLarge;
  if (auto code = ReadBox(boxes.NHap, true, h)) return code;
  if (h < 1) return kF20MinimumOneHaplotype;
  if (h > n) return kF20HaplotypesAboveSample;
  if (auto code = ReadBox(boxes.Theta, false, theta)) return code;
  if (theta <= 0) return kF20ThetaAboveZero;
  input = {Count(n), Count(h), theta};
  return std::nullopt;
}

}  // namespace ovelt

#pragma once
// F20Filtros: the numbered refusals of "Discrete Distributions", each one box titled "Ovelt".
// The window stays open and nothing is computed.

#include <cstdint>

#include "tools/tool_message.h"

namespace ovelt {

inline constexpr int16_t kF20MissingData = 0;
inline constexpr int16_t kF20NotComputable = 1;
inline constexpr int16_t kF20MinimumTwoSequences = 2;
inline constexpr int16_t kF20TotalAboveZero = 3;
inline constexpr int16_t kF20TotalBelowLimit = 4;
inline constexpr int16_t kF20NoNegativeCount = 5;
inline constexpr int16_t kF20HaplotypesAboveSample = 10;
inline constexpr int16_t kF20SampleTooLarge = 11;
inline constexpr int16_t kF20MinimumOneHaplotype = 12;
inline constexpr int16_t kF20ThetaAboveZero = 13;
inline constexpr int16_t kF20LambdaAboveZero = 24;
inline constexpr int16_t kF20PAboveZero = 25;
inline constexpr int16_t kF20PBelowOne = 26;
inline constexpr int16_t kF20InvalidNumber = 27;

// The box of a refusal code. A code outside the table is a programming error:
// std::invalid_argument.
[[nodiscard]] ToolMessage F20Filtros(int16_t code);

}  // namespace ovelt

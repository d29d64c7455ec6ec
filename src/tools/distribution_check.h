#pragma once
// The checks of each tab of "Discrete Distributions": every box must hold a number (code 0 when
// empty, 27 otherwise; counts must be whole numbers), then its own range, then the bounds that
// tie the boxes together. Boxes are checked in the window's order; the first failure's code is
// returned (see distribution_messages.h for the words).
//
//   Binomial:       p in (0, 1) (25, 26); n from 1 (3) to 32766 (4); k from 0 (5) to n (1).
//   Hypergeometric: population from 1 (3) to 32766 (4); successes from 0 (5) to the
//                   population (1); sample n from 1 (3) to the population (1); k from 0 (5) to
//                   the smaller of n and the successes (1).
//   Poisson:        lambda above 0 (24); k from 0 (5) to 32766 (4).
//   Ewens:          sample size from 2 (2) to 500 (11); NHap from 1 (12) to the sample
//                   size (10); theta above 0 (13).
// 32766 is the last size of the log-factorial table, a 16-bit count.

#include <cstdint>
#include <optional>

#include "tools/distribution_options.h"

namespace ovelt {

inline constexpr int32_t kElementLimit = 32767;    // refused from here on
inline constexpr int32_t kEwensSampleLimit = 500;  // the largest sample accepted

struct BinomialInput {
  double P = 0;
  int32_t N = 0;
  int32_t K = 0;
};

struct HypergeometricInput {
  int32_t Population = 0;
  int32_t Successes = 0;
  int32_t N = 0;
  int32_t K = 0;
};

struct PoissonInput {
  double Lambda = 0;
  int32_t K = 0;
};

struct EwensInput {
  int32_t SampleSize = 0;
  int32_t NHap = 0;
  double Theta = 0;
};

// nullopt with the input filled, or the code of the first refusal.
[[nodiscard]] std::optional<int16_t> CheckBinomial(const BinomialOptions& boxes,
                                                   BinomialInput& input);
[[nodiscard]] std::optional<int16_t> CheckHypergeometric(const HypergeometricOptions& boxes,
                                                         HypergeometricInput& input);
[[nodiscard]] std::optional<int16_t> CheckPoisson(const PoissonOptions& boxes, PoissonInput& input);
[[nodiscard]] std::optional<int16_t> CheckEwens(const EwensOptions& boxes, EwensInput& input);

}  // namespace ovelt

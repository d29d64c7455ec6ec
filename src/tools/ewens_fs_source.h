#pragma once
// The Ewens probabilities of the "Ewens Distribution" tab taken from the routine that gives Fu's
// Fs in the neutrality tests (Ewens 1972, Strobeck 1987, Fu 1997; sums in 36-digit decimals):
// P[K = h], Strobeck's S = P[K <= h] and Fs, none where Fs has no value.

#include <cstdint>

#include "tools/ewens_tab.h"

namespace ovelt {

// Called as an EwensTailSource: 2 <= n <= 500, 1 <= h <= n, theta > 0.
[[nodiscard]] EwensTail FsEwensTail(int32_t n, int32_t h, double theta);

}  // namespace ovelt

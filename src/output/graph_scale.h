#pragma once
// The scales of the graph window. The Y step is a fifth of the axis range, held as a 32-bit
// float, brought to the 1, 2, 5 series of decades from 0.00001 up (a leading digit above 2
// gives 5, so 0.03 -> 0.05 and 7000 -> 5000), and read back from its decimal text so that the
// step is the exact decimal a label shows. The first X tick is the axis's first value rounded
// down to a multiple of 10, 100 or 1000 by the width of the axis.

#include <cstdint>

namespace ovelt {

inline constexpr double kSmallestYStep = 0.00001;

// A fifth of the range, as the 32-bit float the step is taken from.
[[nodiscard]] float RawYStep(double range);
// The step of the 1, 2, 5 series for a raw step.
[[nodiscard]] double YStep(float raw);
// The step for an axis range: YStep(RawYStep(range)).
[[nodiscard]] double YStepForRange(double range);

// Which ticks carry a label, with c the integer part of range / step: every tick up to 5,
// every second from 6 to 10, every third above.
[[nodiscard]] int LabelEvery(int64_t c);

// The first X tick for an axis from `first` to `last`: with w = last - first + 1 the decimal
// text of `first` loses its last digit (w below 100), last two (w below 2500) or last three
// digits to zeros; a text with fewer digits than that gives 0.
[[nodiscard]] int64_t FirstXTick(int64_t first, int64_t last);
// Distance between X ticks for the same axis: the step of the 1, 2, 5 series for its range,
// at least 1.
[[nodiscard]] int64_t XTickStep(int64_t first, int64_t last);

}  // namespace ovelt

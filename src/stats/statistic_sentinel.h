#pragma once
// The value that marks a statistic that could not be computed (too few segregating sites, for
// instance). Callers compare against it rather than against NaN, so that it survives the
// averaging and the fixed-format reports of the simulations unchanged.

namespace ovelt {

inline constexpr double kStatisticSentinel = 12345678.0;

}  // namespace ovelt

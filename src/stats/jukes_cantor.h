#pragma once
// Jukes and Cantor (1969) distance from a proportion p of differing sites:
//   d = -(3/4) ln(1 - 4p/3).
// The argument is replaced by x = 4p/3. When x is 1 or more the distance is undefined
// (saturation) and the fixed value 5.0 is returned to mark it.

namespace ovelt {

inline constexpr double kJukesCantorSaturated = 5.0;

[[nodiscard]] double JukesCantor(double& p);

}  // namespace ovelt

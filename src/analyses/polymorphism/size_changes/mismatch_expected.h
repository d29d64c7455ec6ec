#pragma once
// Expected mismatch distributions, as the share of pairs with i differences.
//   Constant size (Watterson 1975; Rogers and Harpending 1992, eq. 3), geometric in i:
//     F(theta, i) = theta^i / (theta + 1)^(i + 1).
//   A sudden change from theta0 to theta1, tau = 2ut mutational units ago (Rogers and
//   Harpending 1992, eq. 4; Rogers 1995):
//     f(i) = F(theta1, i) + exp(-tau (theta1 + 1) / theta1)
//            * sum over j = 0..i of tau^j / j! (F(theta0, i - j) - F(theta1, i - j)).
// Degenerate input: F with theta 0 is the point mass at 0 differences; a theta1 of 0 or less
// drops the sum; a tau or theta0 of 0 is taken as 1e-07, because logarithms are taken of both.

#include <cstdint>
#include <stdexcept>

namespace ovelt {

inline constexpr double kSmallestRate = 1e-07;
inline const char* const kExpansionFailure = "Error in Expansion Module. Value too big !";

// Thrown when an expected value is not a finite number; what() is kExpansionFailure.
class ExpansionError : public std::runtime_error {
 public:
  ExpansionError() : std::runtime_error(kExpansionFailure) {}
};

// F(theta, i), computed as exp(i ln theta - (i + 1) ln(theta + 1)).
[[nodiscard]] double ConstantSizeMismatch(double theta, int32_t i);

// f(i) after the change, rounded to a 32-bit float. Throws ExpansionError.
[[nodiscard]] float SizeChangeMismatch(double theta0, double theta1, double tau, int32_t i);

}  // namespace ovelt

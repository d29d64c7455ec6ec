#pragma once
// Failures of the numeric primitives. A primitive that cannot compute its value throws a
// StatsError; `what()` is the text that the analysis's handler shows (after its own words, for
// those handlers that add some). Only Fisher's exact test and the regression have words of
// their own; the others fail with the short name of the arithmetic fault.

#include <stdexcept>

namespace ovelt {

class StatsError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Arithmetic faults.
inline constexpr const char* kOverflowText = "Overflow";
inline constexpr const char* kDivisionByZeroText = "Division by zero";
inline constexpr const char* kInvalidArgumentText = "Invalid procedure call or argument";
inline constexpr const char* kSubscriptOutOfRangeText = "Subscript out of range";

// Failures with words of their own.
inline constexpr const char* kFisherExactFailureText = "Error computing Fisher Exact test";
inline constexpr const char* kRegressionFailureText = "Error computing Regresion statistics.";

}  // namespace ovelt

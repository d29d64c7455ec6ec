#pragma once
// Small pieces of arithmetic that tests use to derive expected values by hand.

#include <cstdio>
#include <string>

namespace ovelt::testing {

// The binomial coefficient n over k, built up as a running product.
inline double Choose(int n, int k) {
  double value = 1;
  for (int i = 1; i <= k; ++i) value = value * (n - k + i) / i;
  return value;
}

// `value` with a fixed number of decimals, as printf writes it.
inline std::string Fixed(double value, int decimals) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

}  // namespace ovelt::testing

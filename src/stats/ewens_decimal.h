#pragma once
// A decimal floating-point number of 36 significant digits, for the Ewens probabilities of Fu's
// Fs: the recursion over the number of haplotypes and the tail sums must stay accurate where a
// 64-bit double loses everything (a tail of 1e-20 next to a sum near 1). The mantissa is an
// integer of exactly 36 decimal digits (nine per 32-bit limb), the exponent a 64-bit integer, so
// neither overflow nor underflow occurs in any sample size. Every operation is exact before it
// rounds once, to the nearest value, ties to even.

#include <array>
#include <compare>
#include <cstdint>
#include <string>

namespace ovelt {

class Decimal36 {
 public:
  static constexpr int kDigits = 36;

  Decimal36() = default;  // zero
  [[nodiscard]] static Decimal36 FromInteger(int64_t value);
  // The binary value of a finite double, rounded to 36 digits (within a few units of the last).
  [[nodiscard]] static Decimal36 FromDouble(double value);

  [[nodiscard]] bool IsZero() const { return limbs_[kLimbs - 1] == 0; }
  [[nodiscard]] bool IsNegative() const { return negative_; }

  // The nearest double (0 or an infinity beyond the range of a double).
  [[nodiscard]] double ToDouble() const;
  // Natural logarithm as a double; accurate for any positive value, however small.
  // NaN for zero or a negative value.
  [[nodiscard]] double Ln() const;
  // "-d.ddd...E+xx" with trailing zeros of the mantissa left out: 0.1 is "1E-01", 0 is "0".
  [[nodiscard]] std::string Scientific() const;

  friend Decimal36 operator+(const Decimal36& a, const Decimal36& b);
  friend Decimal36 operator-(const Decimal36& a, const Decimal36& b);
  friend Decimal36 operator*(const Decimal36& a, const Decimal36& b);
  // Division by zero is a programming error: std::domain_error.
  friend Decimal36 operator/(const Decimal36& a, const Decimal36& b);
  [[nodiscard]] Decimal36 operator-() const;
  Decimal36& operator+=(const Decimal36& b) { return *this = *this + b; }

  friend bool operator==(const Decimal36& a, const Decimal36& b);
  friend std::strong_ordering operator<=>(const Decimal36& a, const Decimal36& b);

 private:
  static constexpr int kLimbs = 4;
  bool negative_ = false;
  std::array<uint32_t, kLimbs> limbs_{};  // base 1e9, least significant first
  int64_t exponent_ = 0;                  // value = mantissa * 10^exponent_

  friend struct Decimal36Access;
};

}  // namespace ovelt

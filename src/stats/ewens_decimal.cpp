#include "stats/ewens_decimal.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace ovelt {
namespace {

constexpr uint32_t kBase = 1000000000;  // one limb: nine decimal digits
constexpr int kLimbDigits = 9;
constexpr int kWideLimbs = 12;

constexpr std::array<uint32_t, kLimbDigits + 1> kPowersOfTen = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

// An unsigned integer of up to 108 decimal digits, base 1e9, least significant limb first:
// the exact intermediate of every operation before it is rounded back to 36 digits.
struct Wide {
  std::array<uint32_t, kWideLimbs> limb{};
  int size = 0;  // limbs in use; the top one is not 0

  void Trim() {
    while (size > 0 && limb[static_cast<size_t>(size - 1)] == 0) --size;
  }
  [[nodiscard]] bool IsZero() const { return size == 0; }
};

Wide FromUnsigned(uint64_t value) {
  Wide w;
  while (value > 0) {
    w.limb[static_cast<size_t>(w.size++)] = static_cast<uint32_t>(value % kBase);
    value /= kBase;
  }
  return w;
}

int Compare(const Wide& a, const Wide& b) {
  if (a.size != b.size) return a.size < b.size ? -1 : 1;
  for (int i = a.size - 1; i >= 0; --i) {
    const auto k = static_cast<size_t>(i);
    if (a.limb[k] != b.limb[k]) return a.limb[k] < b.limb[k] ? -1 : 1;
  }
  return 0;
}

Wide Add(const Wide& a, const Wide& b) {
  Wide sum;
  uint32_t carry = 0;
  const int size = a.size > b.size ? a.size : b.size;
  for (int i = 0; i < size; ++i) {
    const auto k = static_cast<size_t>(i);
    const uint32_t digit = (i < a.size ? a.limb[k] : 0) + (i < b.size ? b.limb[k] : 0) + carry;
    carry = digit >= kBase ? 1 : 0;
    sum.limb[k] = digit - carry * kBase;
  }
  sum.size = size;
  if (carry != 0) sum.limb[static_cast<size_t>(sum.size++)] = carry;
  return sum;
}

// w + 1.
void Increment(Wide& w) {
  for (int i = 0; i < w.size; ++i) {
    auto& limb = w.limb[static_cast<size_t>(i)];
    if (++limb < kBase) return;
    limb = 0;
  }
  w.limb[static_cast<size_t>(w.size++)] = 1;
}

// a - b for a >= b.
Wide Subtract(const Wide& a, const Wide& b) {
  Wide difference;
  int64_t borrow = 0;
  for (int i = 0; i < a.size; ++i) {
    const auto k = static_cast<size_t>(i);
    int64_t digit = static_cast<int64_t>(a.limb[k]) - (i < b.size ? b.limb[k] : 0) - borrow;
    borrow = digit < 0 ? 1 : 0;
    digit += borrow * kBase;
    difference.limb[k] = static_cast<uint32_t>(digit);
  }
  difference.size = a.size;
  difference.Trim();
  return difference;
}

Wide Multiply(const Wide& a, const Wide& b) {
  std::array<uint64_t, kWideLimbs + 1> cells{};
  for (int i = 0; i < a.size; ++i) {
    uint64_t carry = 0;
    for (int j = 0; j < b.size; ++j) {
      const auto k = static_cast<size_t>(i + j);
      const uint64_t cell =
          cells[k] +
          static_cast<uint64_t>(a.limb[static_cast<size_t>(i)]) * b.limb[static_cast<size_t>(j)] +
          carry;
      cells[k] = cell % kBase;
      carry = cell / kBase;
    }
    cells[static_cast<size_t>(i + b.size)] += carry;
  }
  Wide product;
  product.size = a.size + b.size;
  for (int i = 0; i < product.size; ++i)
    product.limb[static_cast<size_t>(i)] = static_cast<uint32_t>(cells[static_cast<size_t>(i)]);
  product.Trim();
  return product;
}

void MultiplySmall(Wide& w, uint32_t factor) {
  uint64_t carry = 0;
  for (int i = 0; i < w.size; ++i) {
    const auto k = static_cast<size_t>(i);
    const uint64_t cell = static_cast<uint64_t>(w.limb[k]) * factor + carry;
    w.limb[k] = static_cast<uint32_t>(cell % kBase);
    carry = cell / kBase;
  }
  if (carry != 0) w.limb[static_cast<size_t>(w.size++)] = static_cast<uint32_t>(carry);
  w.Trim();
}

// Divides in place; returns the remainder.
template <uint32_t kDivisor>
uint32_t DivideBy(Wide& w) {
  uint64_t remainder = 0;
  for (int i = w.size - 1; i >= 0; --i) {
    const auto k = static_cast<size_t>(i);
    const uint64_t cell = remainder * kBase + w.limb[k];
    w.limb[k] = static_cast<uint32_t>(cell / kDivisor);
    remainder = cell % kDivisor;
  }
  w.Trim();
  return static_cast<uint32_t>(remainder);
}

// Divides in place by 10^digits (digits 0..8); returns the remainder. Each power is a constant
// of its own, so that the compiler divides by multiplying: this is the inner loop of rounding.
uint32_t DividePowerOfTen(Wide& w, int digits) {
  switch (digits) {
    case 0:
      return 0;
    case 1:
      return DivideBy<10>(w);
    case 2:
      return DivideBy<100>(w);
    case 3:
      return DivideBy<1000>(w);
    case 4:
      return DivideBy<10000>(w);
    case 5:
      return DivideBy<100000>(w);
    case 6:
      return DivideBy<1000000>(w);
    case 7:
      return DivideBy<10000000>(w);
    default:
      return DivideBy<100000000>(w);
  }
}

// w * 10^digits.
void ShiftLeftDigits(Wide& w, int digits) {
  if (w.IsZero()) return;
  const int limbs = digits / kLimbDigits;
  for (int i = w.size - 1; i >= 0; --i)
    w.limb[static_cast<size_t>(i + limbs)] = w.limb[static_cast<size_t>(i)];
  for (int i = 0; i < limbs; ++i) w.limb[static_cast<size_t>(i)] = 0;
  w.size += limbs;
  MultiplySmall(w, kPowersOfTen[static_cast<size_t>(digits % kLimbDigits)]);
}

// w / 10^digits, truncated; `sticky` is set when a nonzero digit was dropped.
void ShiftRightDigits(Wide& w, int digits, bool& sticky) {
  const int limbs = digits / kLimbDigits;
  for (int i = 0; i < limbs && i < w.size; ++i)
    sticky = sticky || w.limb[static_cast<size_t>(i)] != 0;
  if (limbs >= w.size) {
    w = Wide{};
    return;
  }
  for (int i = limbs; i < w.size; ++i)
    w.limb[static_cast<size_t>(i - limbs)] = w.limb[static_cast<size_t>(i)];
  for (int i = w.size - limbs; i < w.size; ++i) w.limb[static_cast<size_t>(i)] = 0;
  w.size -= limbs;
  if (DividePowerOfTen(w, digits % kLimbDigits) != 0) sticky = true;
}

int DigitCount(const Wide& w) {
  if (w.IsZero()) return 0;
  const uint32_t top = w.limb[static_cast<size_t>(w.size - 1)];
  int digits = 1;
  while (digits < kLimbDigits && top >= kPowersOfTen[static_cast<size_t>(digits)]) ++digits;
  return (w.size - 1) * kLimbDigits + digits;
}

}  // namespace

struct Decimal36Access {
  static Wide Mantissa(const Decimal36& d) {
    Wide w;
    w.limb = {};
    for (int i = 0; i < Decimal36::kLimbs; ++i)
      w.limb[static_cast<size_t>(i)] = d.limbs_[static_cast<size_t>(i)];
    w.size = Decimal36::kLimbs;
    w.Trim();
    return w;
  }

  // Rounds the exact value w * 10^exponent (plus a nonzero tail below w's last digit when
  // `sticky`) to 36 digits.
  static Decimal36 Round(Wide w, int64_t exponent, bool negative, bool sticky) {
    Decimal36 d;
    if (w.IsZero()) return d;
    const int digits = DigitCount(w);
    if (digits > Decimal36::kDigits) {
      const int drop = digits - Decimal36::kDigits;
      ShiftRightDigits(w, drop - 1, sticky);
      const uint32_t last_dropped = DivideBy<10>(w);
      const bool odd = (w.limb[0] % 2) != 0;
      if (last_dropped > 5 || (last_dropped == 5 && (sticky || odd))) {
        Increment(w);
        if (DigitCount(w) > Decimal36::kDigits) {
          bool ignored = false;
          ShiftRightDigits(w, 1, ignored);
          ++exponent;
        }
      }
      exponent += drop;
    } else if (digits < Decimal36::kDigits) {
      ShiftLeftDigits(w, Decimal36::kDigits - digits);
      exponent -= Decimal36::kDigits - digits;
    }
    for (int i = 0; i < Decimal36::kLimbs; ++i)
      d.limbs_[static_cast<size_t>(i)] = w.limb[static_cast<size_t>(i)];
    d.exponent_ = exponent;
    d.negative_ = negative;
    return d;
  }

  static Decimal36 AddSigned(const Decimal36& a, const Decimal36& b, bool negate_b) {
    const bool b_negative = b.negative_ != negate_b;
    if (b.IsZero()) return a;
    if (a.IsZero()) {
      Decimal36 result = b;
      result.negative_ = b_negative;
      return result;
    }
    // Align on the smaller exponent; a gap beyond 38 digits leaves the larger value as it is,
    // the smaller one lying below a hundredth of its last digit.
    const bool a_larger = a.exponent_ >= b.exponent_;
    const Decimal36& high = a_larger ? a : b;
    const Decimal36& low = a_larger ? b : a;
    const bool high_negative = a_larger ? a.negative_ : b_negative;
    const bool low_negative = a_larger ? b_negative : a.negative_;
    const int64_t gap = high.exponent_ - low.exponent_;
    constexpr int64_t kNegligibleGap = Decimal36::kDigits + 2;
    if (gap > kNegligibleGap) {
      Decimal36 result = high;
      result.negative_ = high_negative;
      return result;
    }
    Wide high_w = Mantissa(high);
    ShiftLeftDigits(high_w, static_cast<int>(gap));
    const Wide low_w = Mantissa(low);
    if (high_negative == low_negative)
      return Round(Add(high_w, low_w), low.exponent_, high_negative, false);
    const int order = Compare(high_w, low_w);
    if (order == 0) return Decimal36{};
    return order > 0 ? Round(Subtract(high_w, low_w), low.exponent_, high_negative, false)
                     : Round(Subtract(low_w, high_w), low.exponent_, low_negative, false);
  }

  static Decimal36 Product(const Decimal36& a, const Decimal36& b) {
    if (a.IsZero() || b.IsZero()) return Decimal36{};
    return Round(Multiply(Mantissa(a), Mantissa(b)), a.exponent_ + b.exponent_,
                 a.negative_ != b.negative_, false);
  }

  // Long division, one decimal digit of the quotient at a time: the numerator a * 10^38 over b
  // gives a quotient of 38 or 39 digits, the remainder only decides the rounding.
  static Decimal36 Quotient(const Decimal36& a, const Decimal36& b) {
    if (b.IsZero()) throw std::domain_error("Decimal36: division by zero");
    if (a.IsZero()) return Decimal36{};
    constexpr int kExtraDigits = Decimal36::kDigits + 2;
    const Wide divisor = Mantissa(b);
    const std::string numerator_digits = MantissaDigits(a) + std::string(kExtraDigits, '0');
    Wide remainder, quotient;
    for (const char c : numerator_digits) {
      MultiplySmall(remainder, 10);
      remainder = Add(remainder, FromUnsigned(static_cast<uint64_t>(c - '0')));
      uint32_t digit = 0;
      while (Compare(remainder, divisor) >= 0) {
        remainder = Subtract(remainder, divisor);
        ++digit;
      }
      MultiplySmall(quotient, 10);
      quotient = Add(quotient, FromUnsigned(digit));
    }
    return Round(quotient, a.exponent_ - b.exponent_ - kExtraDigits, a.negative_ != b.negative_,
                 !remainder.IsZero());
  }

  // The 36 digits of the mantissa, most significant first.
  static std::string MantissaDigits(const Decimal36& d) {
    std::string digits;
    for (int i = Decimal36::kLimbs - 1; i >= 0; --i) {
      std::string limb = std::to_string(d.limbs_[static_cast<size_t>(i)]);
      digits += std::string(static_cast<size_t>(kLimbDigits) - limb.size(), '0') + limb;
    }
    return digits;
  }

  static int64_t ScientificExponent(const Decimal36& d) {
    return d.exponent_ + Decimal36::kDigits - 1;
  }

  static Decimal36 WithExponent(Decimal36 d, int64_t exponent) {
    d.exponent_ = exponent;
    return d;
  }
};

namespace {

// 2^power by repeated squaring; 2^-k is taken as 5^k * 10^-k.
Decimal36 PowerOfTwo(int power) {
  const bool inverse = power < 0;
  unsigned remaining = static_cast<unsigned>(inverse ? -power : power);
  Decimal36 base = Decimal36::FromInteger(inverse ? 5 : 2);
  Decimal36 result = Decimal36::FromInteger(1);
  while (remaining > 0) {
    if ((remaining & 1U) != 0) result = result * base;
    remaining >>= 1U;
    if (remaining > 0) base = base * base;
  }
  if (!inverse) return result;
  return result *
         Decimal36Access::WithExponent(Decimal36::FromInteger(1),
                                       -static_cast<int64_t>(-power) - (Decimal36::kDigits - 1));
}

}  // namespace

Decimal36 Decimal36::FromInteger(int64_t value) {
  const bool negative = value < 0;
  const uint64_t magnitude =
      negative ? static_cast<uint64_t>(-(value + 1)) + 1 : static_cast<uint64_t>(value);
  return Decimal36Access::Round(FromUnsigned(magnitude), 0, negative, false);
}

Decimal36 Decimal36::FromDouble(double value) {
  if (!std::isfinite(value)) throw std::domain_error("Decimal36: value not finite");
  if (value == 0.0) return Decimal36{};
  int binary_exponent = 0;
  const double fraction = std::frexp(value, &binary_exponent);
  constexpr int kMantissaBits = std::numeric_limits<double>::digits;
  auto integer = static_cast<int64_t>(std::ldexp(fraction, kMantissaBits));
  int power = binary_exponent - kMantissaBits;
  // An odd integer part keeps the power of two short: 0.5 is 1 * 2^-1, exact in decimal.
  while (integer % 2 == 0) {
    integer /= 2;
    ++power;
  }
  return FromInteger(integer) * PowerOfTwo(power);
}

double Decimal36::ToDouble() const {
  if (IsZero()) return 0.0;
  const std::string text = Scientific();
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    const bool tiny = Decimal36Access::ScientificExponent(*this) < 0;
    const double magnitude = tiny ? 0.0 : std::numeric_limits<double>::infinity();
    return negative_ ? -magnitude : magnitude;
  }
  return value;
}

double Decimal36::Ln() const {
  if (IsZero() || negative_) return std::numeric_limits<double>::quiet_NaN();
  // ln(m * 10^e) with m in [1, 10): the mantissa part fits a double at any exponent.
  const int64_t exponent = Decimal36Access::ScientificExponent(*this);
  const double mantissa =
      Decimal36Access::WithExponent(*this, -(Decimal36::kDigits - 1)).ToDouble();
  return std::log(mantissa) + static_cast<double>(exponent) * std::log(10.0);
}

std::string Decimal36::Scientific() const {
  if (IsZero()) return "0";
  std::string digits = Decimal36Access::MantissaDigits(*this);
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
  std::string text = negative_ ? "-" : "";
  text += digits.substr(0, 1);
  if (digits.size() > 1) text += "." + digits.substr(1);
  const int64_t exponent = Decimal36Access::ScientificExponent(*this);
  const uint64_t magnitude =
      exponent < 0 ? static_cast<uint64_t>(-exponent) : static_cast<uint64_t>(exponent);
  text += exponent < 0 ? "E-" : "E+";
  if (magnitude < 10) text += "0";
  return text + std::to_string(magnitude);
}

Decimal36 operator+(const Decimal36& a, const Decimal36& b) {
  return Decimal36Access::AddSigned(a, b, false);
}

Decimal36 operator-(const Decimal36& a, const Decimal36& b) {
  return Decimal36Access::AddSigned(a, b, true);
}

Decimal36 operator*(const Decimal36& a, const Decimal36& b) {
  return Decimal36Access::Product(a, b);
}

Decimal36 operator/(const Decimal36& a, const Decimal36& b) {
  return Decimal36Access::Quotient(a, b);
}

Decimal36 Decimal36::operator-() const {
  Decimal36 result = *this;
  if (!IsZero()) result.negative_ = !negative_;
  return result;
}

bool operator==(const Decimal36& a, const Decimal36& b) {
  return a.negative_ == b.negative_ && a.exponent_ == b.exponent_ && a.limbs_ == b.limbs_;
}

std::strong_ordering operator<=>(const Decimal36& a, const Decimal36& b) {
  if (a == b) return std::strong_ordering::equal;
  // Signs first (zero is neither), then magnitudes: normalized mantissas make the exponent
  // decide, then the digits.
  const int sign_a = a.IsZero() ? 0 : (a.negative_ ? -1 : 1);
  const int sign_b = b.IsZero() ? 0 : (b.negative_ ? -1 : 1);
  if (sign_a != sign_b) return sign_a <=> sign_b;
  std::strong_ordering magnitude = a.exponent_ <=> b.exponent_;
  if (magnitude == std::strong_ordering::equal) {
    for (int i = Decimal36::kLimbs - 1; i >= 0; --i) {
      const auto k = static_cast<size_t>(i);
      if (a.limbs_[k] != b.limbs_[k]) {
        magnitude = a.limbs_[k] <=> b.limbs_[k];
        break;
      }
    }
  }
  return sign_a < 0 ? 0 <=> magnitude : magnitude;
}

}  // namespace ovelt

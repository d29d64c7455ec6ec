#include "stats/ewens_decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace ovelt {
namespace {

Decimal36 D(int64_t value) {
  return Decimal36::FromInteger(value);
}

// 10^power for power >= 0, exactly.
Decimal36 Power10(int power) {
  Decimal36 value = D(1);
  for (int i = 0; i < power; ++i) value = value * D(10);
  return value;
}

// The 36-digit integer 123456789012345678901234567890123456, built from two exact halves.
Decimal36 ThirtySixDigits() {
  return D(123456789012345678) * Power10(18) + D(901234567890123456);
}

TEST(Decimal36, IntegersPrintTheirDigits) {
  EXPECT_EQ(D(0).Scientific(), "0");
  EXPECT_EQ(D(1).Scientific(), "1E+00");
  EXPECT_EQ(D(-12345).Scientific(), "-1.2345E+04");
  EXPECT_EQ(D(INT64_MIN).Scientific(), "-9.223372036854775808E+18");
  EXPECT_EQ(ThirtySixDigits().Scientific(), "1.23456789012345678901234567890123456E+35");
}

TEST(Decimal36, DivisionRoundsTheThirtySeventhDigit) {
  // 1/3 = 0.333..., 36 threes; 2/3 = 0.666...67, the last digit rounded up.
  EXPECT_EQ((D(1) / D(3)).Scientific(), "3." + std::string(35, '3') + "E-01");
  EXPECT_EQ((D(2) / D(3)).Scientific(), "6." + std::string(34, '6') + "7E-01");
  // (1/3) * 3 is 36 nines: one unit of the last digit below 1.
  EXPECT_EQ((D(1) / D(3) * D(3)).Scientific(), "9." + std::string(35, '9') + "E-01");
  EXPECT_EQ((D(1) / D(8)).Scientific(), "1.25E-01");
  EXPECT_EQ((D(-7) / D(2)).Scientific(), "-3.5E+00");
}

TEST(Decimal36, AdditionKeepsThirtySixDigits) {
  // 10^20 + 1 needs 21 digits: exact.
  EXPECT_EQ((Power10(20) + D(1)).Scientific(), "1.00000000000000000001E+20");
  // 10^35 + 1 needs 36 digits: exact; 10^36 + 1 needs 37: the 1 is rounded away.
  EXPECT_EQ((Power10(35) + D(1)).Scientific(), "1." + std::string(34, '0') + "1E+35");
  EXPECT_EQ((Power10(36) + D(1)).Scientific(), "1E+36");
  // Cancellation leaves the exact difference.
  const Decimal36 tiny = D(1) / Power10(30);
  EXPECT_EQ(((D(1) + tiny) - D(1)).Scientific(), "1E-30");
  EXPECT_TRUE((D(5) - D(5)).IsZero());
  EXPECT_EQ((D(3) - D(5)).Scientific(), "-2E+00");
  EXPECT_EQ((D(-3) + D(5)).Scientific(), "2E+00");
}

TEST(Decimal36, TiesRoundToEven) {
  // 10 a + 5 lies halfway between 10 a and 10 (a + 1) at 36 digits.
  const Decimal36 even = ThirtySixDigits();  // ends in 6
  EXPECT_EQ((even * D(10) + D(5)).Scientific(), "1.23456789012345678901234567890123456E+36");
  const Decimal36 odd = even + D(1);  // ends in 7
  EXPECT_EQ((odd * D(10) + D(5)).Scientific(), "1.23456789012345678901234567890123458E+36");
  // Just above the half rounds up whatever the parity.
  EXPECT_EQ((even * D(10) + (D(5) + D(1) / D(1000))).Scientific(),
            "1.23456789012345678901234567890123457E+36");
}

TEST(Decimal36, MultiplicationIsExactThenRounded) {
  // 99999999999 * 99999999999 = 9999999999800000000001 (22 digits), exact.
  EXPECT_EQ((D(99999999999) * D(99999999999)).Scientific(), "9.999999999800000000001E+21");
  // (10^18 + 1)^2 = 10^36 + 2 10^18 + 1 has 37 digits: the final 1 rounds away.
  const Decimal36 a = Power10(18) + D(1);
  EXPECT_EQ((a * a).Scientific(), "1.000000000000000002E+36");
  EXPECT_EQ((D(-4) * D(25)).Scientific(), "-1E+02");
  EXPECT_TRUE((D(0) * D(-4)).IsZero());
}

TEST(Decimal36, ExponentsBeyondTheRangeOfADouble) {
  Decimal36 tiny = D(1);
  const Decimal36 huge_divisor = Power10(100);
  for (int i = 0; i < 4; ++i) tiny = tiny / huge_divisor;  // 1e-400
  EXPECT_EQ(tiny.Scientific(), "1E-400");
  EXPECT_EQ(tiny.ToDouble(), 0.0);
  EXPECT_NEAR(tiny.Ln(), -400.0 * std::log(10.0), 1e-9);
  EXPECT_EQ((tiny * tiny).Scientific(), "1E-800");
  EXPECT_TRUE(std::isinf((Power10(100) * Power10(100) * Power10(100) * Power10(100)).ToDouble()));
  // Adding something 10^400 times smaller leaves a value as it is.
  EXPECT_EQ(D(1) + tiny, D(1));
}

TEST(Decimal36, FromDoubleTakesTheBinaryValue) {
  EXPECT_EQ(Decimal36::FromDouble(0.5).Scientific(), "5E-01");
  EXPECT_EQ(Decimal36::FromDouble(-2.25).Scientific(), "-2.25E+00");
  EXPECT_EQ(Decimal36::FromDouble(0.375).Scientific(), "3.75E-01");
  EXPECT_EQ(Decimal36::FromDouble(1e6).Scientific(), "1E+06");
  EXPECT_TRUE(Decimal36::FromDouble(0.0).IsZero());
  // 0.1 is 0.1000000000000000055511151231257827021181583404541015625 in binary.
  EXPECT_EQ(Decimal36::FromDouble(0.1).Scientific().substr(0, 34),
            "1.00000000000000005551115123125782");
  EXPECT_THROW((void)Decimal36::FromDouble(INFINITY), std::domain_error);
}

TEST(Decimal36, ToDoubleIsTheNearestDouble) {
  EXPECT_EQ((D(1) / D(3)).ToDouble(), 1.0 / 3.0);
  EXPECT_EQ((D(2) / D(3)).ToDouble(), 2.0 / 3.0);
  EXPECT_EQ(Decimal36::FromDouble(0.1).ToDouble(), 0.1);
  EXPECT_EQ(D(-12345).ToDouble(), -12345.0);
  EXPECT_EQ(D(0).ToDouble(), 0.0);
}

TEST(Decimal36, LogarithmOfPositiveValues) {
  EXPECT_NEAR((D(1) / D(3)).Ln(), std::log(1.0 / 3.0), 1e-15);
  EXPECT_NEAR(D(1).Ln(), 0.0, 1e-15);
  EXPECT_NEAR(Power10(50).Ln(), 50.0 * std::log(10.0), 1e-12);
  EXPECT_TRUE(std::isnan(D(0).Ln()));
  EXPECT_TRUE(std::isnan(D(-2).Ln()));
}

TEST(Decimal36, OrderingFollowsTheValues) {
  const Decimal36 tiny = D(1) / Power10(50);
  EXPECT_LT(D(-2), D(-1));
  EXPECT_LT(D(-1), D(0));
  EXPECT_LT(D(0), tiny);
  EXPECT_LT(tiny, D(1));
  EXPECT_LT(D(1), D(2));
  EXPECT_LT(D(9), D(10));
  EXPECT_LT(-D(10), -D(9));
  EXPECT_GT(D(1) / D(3), D(33) / D(100));
  EXPECT_EQ(D(6) / D(4), D(3) / D(2));
  EXPECT_EQ(-D(0), D(0));
}

TEST(Decimal36, DivisionByZeroIsRefused) {
  EXPECT_THROW((void)(D(1) / D(0)), std::domain_error);
}

}  // namespace
}  // namespace ovelt

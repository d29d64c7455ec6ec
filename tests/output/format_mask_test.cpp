// The number masks, case by case. Every expected text is worked out by hand from the rules: the
// value is first taken at 15 significant digits (7 for a Single), then rounded half away from
// zero; the binary expansions quoted in the comments show why some cases differ from printf.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "output/format_mask.h"

namespace ovelt {
namespace {

using Value = std::variant<double, float, int64_t, std::string>;

struct FormatCase {
  Value Input;
  std::string Mask;
  std::string Expected;
  std::string Why;
};

std::string Apply(const FormatCase& c) {
  return std::visit([&](const auto& v) { return Format(v, c.Mask); }, c.Input);
}

const std::vector<FormatCase>& Cases() {
  static const std::vector<FormatCase> kCases = {
      // Rounding of halves, away from zero, on the decimal value.
      {0.125, "0.00", "0.13", "0.125 is exact in binary: a true half"},
      {2.5, "0", "3", "half rounds up"},
      {-2.5, "0", "-3", "half rounds away from zero"},
      {0.5, "0", "1", "half below one"},
      {0.49, "0", "0", "below the half"},
      {1.005, "0.00", "1.01", "1.00499999999999989... reads 1.00500000000000"},
      {2.675, "0.00", "2.68", "2.67499999999999982... reads 2.67500000000000"},
      {0.0000005, "0.000000", "0.000001", "4.99999999999999977e-7 reads 5.00000000000000e-7"},
      {99.995, "0.00", "100.00", "99.99499999999999033... reads 99.9950000000000; carry"},
      {9.9999, "0.000", "10.000", "carry through all nines"},
      {0.05, "0.0", "0.1", "one twentieth"},
      {-0.005, "0.00", "-0.01", "negative half"},
      {-7.25, "0.0", "-7.3", "negative quarter half"},
      // Leading zero and negatives.
      {0.123, "0.000", "0.123", "leading zero below one"},
      {-0.123, "0.000", "-0.123", "negative below one"},
      {0.123456789, "0.00000", "0.12346", "five decimals"},
      {3.14159265, "0.0000", "3.1416", "four decimals"},
      {12.3456789, "0.0000000", "12.3456789", "seven decimals"},
      {0.1 + 0.2, "0.0000000", "0.3000000", "0.30000000000000004 reads 0.300000000000000"},
      {7.0, "0.00000", "7.00000", "whole value, zeros filled"},
      {0.0, "0.00000", "0.00000", "zero"},
      // Negative values that round to zero keep their sign; an exact -0.0 has none.
      {-0.001, "0.00", "-0.00", "negative rounding to zero"},
      {-0.004, "0.00", "-0.00", "negative rounding to zero"},
      {-1e-20, "0.00", "-0.00", "tiny negative"},
      {-0.0, "0.00", "0.00", "negative zero"},
      {-0.0, "@@@", "  0", "negative zero as text"},
      // Large and tiny values under digit masks.
      {1e20, "0.00", "100000000000000000000.00", "all integer digits"},
      {123456789012345678.0, "0", "123456789012346000", "only 15 significant digits"},
      {1234567.891, "0.0", "1234567.9", "large with a decimal"},
      {1e-20, "0.00", "0.00", "tiny positive"},
      // The value as text, right-aligned.
      {0.5, "@@@@", " 0.5", "one half keeps its leading zero"},
      {2.0, "@@@@", "   2", "integer without point"},
      {100.0, "@@@@@", "  100", "trailing zeros of an integer stay"},
      {-3.75, "@@@@@@@", "  -3.75", "negative"},
      {0.1 + 0.2, "@@@@@", "  0.3", "15 digits drop the binary tail"},
      {1.0 / 3.0, "@@@@@@@@@@@", "0.333333333333333", "longer than the mask: whole"},
      {123456.789, "@@@@", "123456.789", "longer than the mask: whole"},
      {0.0001, "@@@@@@", "0.0001", "plain down to 1E-4"},
      {0.00001, "@@@@@@@@@@@", "      1E-05", "E notation below 1E-4"},
      {1.5e-7, "@@@@@@@@", " 1.5E-07", "tiny value in E notation"},
      {-2.5e-10, "@", "-2.5E-10", "negative tiny"},
      {999999999999999.0, "@", "999999999999999", "15 digits stay plain"},
      {123456789012345.0, "@", "123456789012345", "15 digits stay plain"},
      {1e15, "@@@@@@@@", "   1E+15", "16 digits go to E notation"},
      {1234567890123456.0, "@", "1.23456789012346E+15", "rounded to 15 digits"},
      {1e100, "@", "1E+100", "three exponent digits"},
      // Single precision: 7 significant digits.
      {0.1f, "@@@@@@@@@@@", "        0.1", "0.100000001490116 as a Single is 0.1"},
      {0.1f, "0.0000000000", "0.1000000000", "the Single's decimal value is 0.1000000"},
      {1.005f, "0.00", "1.01", "1.00499999523 reads 1.005000"},
      {2.5f, "0", "3", "half of a Single"},
      {0.3f, "0.00000", "0.30000", "0.300000011920929 reads 0.3000000"},
      {-0.0001f, "0.000", "-0.000", "negative Single rounding to zero"},
      {1e7f, "@", "1E+07", "8 digits go to E notation for a Single"},
      {1234567.0f, "@", "1234567", "7 digits stay plain for a Single"},
      {3.14159265f, "@", "3.141593", "3.14159274101257 at 7 digits"},
      {16777217.0f, "@", "1.677722E+07", "stored as 16777216"},
      // Integers and counters.
      {int64_t{12345}, "@@@@@@@@", "   12345", "counter right-aligned"},
      {int64_t{7}, "0.00", "7.00", "integer with decimals"},
      {int64_t{-42}, "0", "-42", "negative integer"},
      {int64_t{0}, "0.000", "0.000", "zero integer"},
      {int64_t{1234567890123456789}, "0", "1234567890123456789", "every digit of an integer"},
      {int64_t{5}, "00", "05", "two integer places"},
      {int64_t{5}, "000", "005", "three integer places"},
      {int64_t{123456}, "@@@@", "123456", "longer than the mask: whole"},
      {int64_t{-5}, "@@@@", "  -5", "negative integer as text"},
      // Texts.
      {std::string("abc"), "@@@@@", "  abc", "padded on the left"},
      {std::string("abcdefgh"), "@@@@", "abcdefgh", "longer than the mask: whole"},
      {std::string(""), "@@@", "   ", "empty text"},
      {std::string("Population one"), "!@@@@@@@@@@@@@@@@@", "Population one   ",
       "left-aligned in 17"},
      {std::string("A very long population name"), "!@@@@@@@@@@@@@@@@@", "A very long popul",
       "cut on the right at 17"},
      {std::string("xy"), "!@@@@", "xy  ", "short left-aligned field"},
      {std::string("0.125"), "0.00", "0.13", "a numeric text takes the digit mask"},
      {std::string("n.d."), "0.000", "n.d.", "other texts stand as they are"},
      // Optional digits and E notation.
      {5.0, "0.##", "5.", "the point stays without decimals"},
      {3.14159, "0.####", "3.1416", "optional decimals rounded"},
      {0.5, "0.#####", "0.5", "optional decimals dropped"},
      {1e-5, "0.#############", "0.00001", "thirteen optional decimals"},
      {0.3, "#", "", "an optional integer digit prints nothing for zero"},
      {12345.678, "0.000000E+00", "1.234568E+04", "E notation, 7 significant digits"},
      {0.00012345, "0.000000E+00", "1.234500E-04", "negative exponent"},
      {0.0, "0.000000E+00", "0.000000E+00", "zero in E notation"},
      {9.9999999, "0.000000E+00", "1.000000E+01", "rounding carries into the exponent"},
      {-2.5, "0.000000E+00", "-2.500000E+00", "negative in E notation"},
      // Values that are not finite.
      {std::nan(""), "0.00", "n.d.", "not a number"},
      {std::numeric_limits<double>::infinity(), "@@@@@", " n.d.", "infinity"},
  };
  return kCases;
}

TEST(FormatTable, HasAtLeastSixtyCases) { EXPECT_GE(Cases().size(), 60u); }

TEST(FormatTable, EveryCaseGivesItsText) {
  for (const auto& c : Cases()) {
    EXPECT_EQ(Apply(c), c.Expected) << "mask \"" << c.Mask << "\": " << c.Why;
  }
}

TEST(Format, ValueBelowOnePrintsItsLeadingZero) {
  EXPECT_EQ(Format(0.5, "0.0"), "0.5");
  EXPECT_EQ(Format(0.987, "0.000"), "0.987");
}

TEST(Format, NegativeBelowOnePrintsMinusAndLeadingZero) {
  EXPECT_EQ(Format(-0.123, "0.000"), "-0.123");
}

TEST(Format, TextLongerThanMaskWidensItsColumn) {
  const std::string cell = Format(std::string("Drosophila_melanogaster"), "@@@@@@@@");
  EXPECT_EQ(cell, "Drosophila_melanogaster");
  EXPECT_GT(cell.size(), std::string("@@@@@@@@").size());
}

TEST(Format, CountersOfEveryWidthTakeTheSameMasks) {
  const int16_t sixteen = -17;
  const int32_t thirty_two = 65536;
  const long long wide = 9;
  EXPECT_EQ(Format(sixteen, "@@@@@"), "  -17");
  EXPECT_EQ(Format(thirty_two, "0.0"), "65536.0");
  EXPECT_EQ(Format(wide, "00"), "09");
  EXPECT_EQ(Format(int64_t{-9223372036854775807 - 1}, "0"), "-9223372036854775808");
}

TEST(Format, SingleAndDoubleOfOneValueDiffer) {
  // 0.1f is 0.100000001490116... exactly; at 15 digits a Double would show its tail.
  EXPECT_EQ(Format(static_cast<double>(0.1f), "@"), "0.100000001490116");
  EXPECT_EQ(Format(0.1f, "@"), "0.1");
}

TEST(Format, DigitMaskAgreesWithIntegerArithmeticOnHalves) {
  // k + 0.5 is exact in binary for small k; away-from-zero rounding gives k + 1 (and -(k + 1)).
  for (int k = 0; k < 200; ++k) {
    const double half = k + 0.5;
    EXPECT_EQ(Format(half, "0"), std::to_string(k + 1));
    EXPECT_EQ(Format(-half, "0"), std::to_string(-(k + 1)));
  }
}

TEST(Format, ThreeDecimalsAgreeWithThousandthsCounting) {
  // n / 1000 for n = 0..2000, printed with three decimals, must read back as n thousandths: the
  // 15-digit decimal value removes the binary error of the division.
  for (int n = 0; n <= 2000; ++n) {
    const std::string text = Format(n / 1000.0, "0.000");
    char expected[32];
    std::snprintf(expected, sizeof expected, "%d.%03d", n / 1000, n % 1000);
    EXPECT_EQ(text, expected) << n;
  }
}

TEST(Format, UnknownMaskIsAProgrammingError) {
  EXPECT_THROW((void)Format(1.0, "0,00"), std::invalid_argument);
  EXPECT_THROW((void)Format(int64_t{1}, "abc"), std::invalid_argument);
  EXPECT_THROW((void)Format(std::string("x"), "0.0E"), std::invalid_argument);
  EXPECT_THROW((void)Format(Platform::DateTime{}, "0.00"), std::invalid_argument);
}

TEST(Format, EmptyMaskGivesTheValueAsText) {
  EXPECT_EQ(Format(0.25, ""), "0.25");
  EXPECT_EQ(Format(int64_t{12}, ""), "12");
}

TEST(StrNum, NoBlankBeforeTheNumber) {
  EXPECT_EQ("Number of sequences: " + StrNum(25), "Number of sequences: 25");
  EXPECT_EQ(StrNum(int16_t{-3}), "-3");
  EXPECT_EQ(StrNum(int64_t{0}), "0");
  EXPECT_EQ(StrNum(0.75), "0.75");
  EXPECT_EQ(StrNum(0.1f), "0.1");
}

TEST(NumberText, FollowsTheGeneralFifteenDigitRule) {
  EXPECT_EQ(NumberText(0.5), "0.5");
  EXPECT_EQ(NumberText(-0.5), "-0.5");
  EXPECT_EQ(NumberText(1e14), "100000000000000");
  EXPECT_EQ(NumberText(1e15), "1E+15");
  EXPECT_EQ(NumberText(2.5e-5), "2.5E-05");
  EXPECT_EQ(NumberText(0.00025), "0.00025");
  EXPECT_EQ(NumberText(std::nan("")), "n.d.");
}

TEST(DateMask, MonthInWords) {
  const Platform::DateTime when{2004, 3, 5, 14, 5, 9};
  EXPECT_EQ(Format(when, "dd - mmmm - yyyy"), "05 - March - 2004");
  EXPECT_EQ(Format(Platform::DateTime{1999, 12, 31, 0, 0, 0}, "dd - mmmm - yyyy"),
            "31 - December - 1999");
}

TEST(DateMask, TimeWithMinutesAfterHours) {
  EXPECT_EQ(Format(Platform::DateTime{2004, 3, 5, 14, 5, 9}, "hh:mm:ss"), "14:05:09");
  EXPECT_EQ(Format(Platform::DateTime{2004, 3, 5, 7, 30, 0}, "h:nn"), "7:30");
}

TEST(DateMask, ShortFormsAndWeekdays) {
  // 5 March 2004 was a Friday; 1 January 2000 a Saturday; 29 February 2000 day 60 of its year.
  EXPECT_EQ(Format(Platform::DateTime{2004, 3, 5, 0, 0, 0}, "dddd d mmm yy"), "Friday 5 Mar 04");
  EXPECT_EQ(Format(Platform::DateTime{2000, 1, 1, 0, 0, 0}, "ddd/mm"), "Sat/01");
  EXPECT_EQ(Format(Platform::DateTime{2000, 2, 29, 0, 0, 0}, "y"), "60");
  EXPECT_EQ(Format(Platform::DateTime{2000, 3, 1, 0, 0, 0}, "y"), "61");
  EXPECT_EQ(Format(Platform::DateTime{1900, 3, 1, 0, 0, 0}, "y"), "60");
}

}  // namespace
}  // namespace ovelt

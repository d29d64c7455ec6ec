#include "tools/typed_value.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(TypedValue, ReadsPlainNumbers) {
  EXPECT_EQ(ReadTypedValue("12").Value, 12.0);
  EXPECT_EQ(ReadTypedValue("-0.5").Value, -0.5);
  EXPECT_EQ(ReadTypedValue("+3").Value, 3.0);
  EXPECT_EQ(ReadTypedValue(".25").Value, 0.25);
  EXPECT_EQ(ReadTypedValue("5.").Value, 5.0);
  EXPECT_EQ(ReadTypedValue("1e3").Value, 1000.0);
  EXPECT_EQ(ReadTypedValue("2.5E-1").Value, 0.25);
  EXPECT_EQ(ReadTypedValue("  7 ").Status, TypedStatus::kNumber);
  EXPECT_EQ(ReadTypedValue("  7 ").Value, 7.0);
}

TEST(TypedValue, ADecimalCommaIsAPoint) {
  EXPECT_EQ(CalcCambioComa("0,25"), "0.25");
  EXPECT_EQ(ReadTypedValue("0,25").Value, 0.25);
  EXPECT_EQ(ReadTypedValue("2,5").Status, TypedStatus::kNumber);
}

TEST(TypedValue, EmptyBoxesAreMissing) {
  EXPECT_EQ(ReadTypedValue("").Status, TypedStatus::kMissing);
  EXPECT_EQ(ReadTypedValue("   ").Status, TypedStatus::kMissing);
}

TEST(TypedValue, AnythingElseIsNoNumber) {
  for (const char* text : {"abc", "1.2.3", "1,2,3", "-", ".", "1e", "e5", "12a", "1 2", "inf",
                           "nan", "0x10", "1e999", "--1"})
    EXPECT_EQ(ReadTypedValue(text).Status, TypedStatus::kNotANumber) << text;
}

TEST(TypedValue, WholeNumbers) {
  EXPECT_TRUE(IsWholeNumber(3.0));
  EXPECT_TRUE(IsWholeNumber(-2.0));
  EXPECT_TRUE(IsWholeNumber(1e20));
  EXPECT_FALSE(IsWholeNumber(2.5));
  EXPECT_FALSE(IsWholeNumber(std::numeric_limits<double>::infinity()));
}

}  // namespace
}  // namespace ovelt

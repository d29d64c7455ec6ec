#include <gtest/gtest.h>

#include <cmath>

#include "output/json_text.h"

namespace ovelt {
namespace {

TEST(JsonText, WritesNestedObjectsAndArrays) {
  JsonText json;
  json.BeginObject()
      .Integer("S", 12)
      .Number("Pi", 0.25)
      .Bool("ok", true)
      .String("name", "a \"b\"\n")
      .Numbers("k", {1.5, 2})
      .BeginArray("rows")
      .BeginObject()
      .Integer("site", 1)
      .EndObject()
      .BeginObject()
      .Null("x")
      .EndObject()
      .EndArray()
      .EndObject();
  EXPECT_EQ(json.Text(),
            "{\"S\":12,\"Pi\":0.25,\"ok\":true,\"name\":\"a \\\"b\\\"\\n\",\"k\":[1.5,2],"
            "\"rows\":[{\"site\":1},{\"x\":null}]}");
}

TEST(JsonText, NumbersReadBackExactlyAndNonFiniteIsNull) {
  JsonText json;
  json.BeginObject().Number("third", 1.0 / 3.0).Number("nan", std::nan("")).EndObject();
  EXPECT_EQ(json.Text(), "{\"third\":0.33333333333333331,\"nan\":null}");
  EXPECT_EQ(std::stod("0.33333333333333331"), 1.0 / 3.0);
}

}  // namespace
}  // namespace ovelt

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
  // The shortest text that reads back as the same double.
  EXPECT_EQ(json.Text(), "{\"third\":0.3333333333333333,\"nan\":null}");
  EXPECT_EQ(std::stod("0.3333333333333333"), 1.0 / 3.0);
  JsonText tenth;
  tenth.BeginObject().Number("a", 0.1).Number("b", 0.1 * 3).Number("c", 1e-300).EndObject();
  EXPECT_EQ(tenth.Text(), "{\"a\":0.1,\"b\":0.30000000000000004,\"c\":1e-300}");
}

}  // namespace
}  // namespace ovelt

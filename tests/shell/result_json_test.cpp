// The JSON made from a result's declared fields: an optional part written among the result's
// own keys, or null under each of them; integer arrays of any width.
#include "command/result_json.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace ovelt {
namespace {

struct Part {
  int32_t Count = 0;
  double Share = 0.0;
  std::optional<double> Maybe;
  std::vector<int64_t> Counts;

  template <class V>
  void Visit(V& v) const {
    v.Integer("count", Count);
    v.Number("share", Share);
    v.Optional("maybe", Maybe);
    v.Integers("counts", Counts);
  }
};

struct Whole {
  std::optional<Part> Inline;
  std::optional<Part> Nested;

  template <class V>
  void Visit(V& v) const {
    v.Fields(Inline);
    v.Object("nested", Nested);
  }
};

TEST(ResultJson, AnOptionalPartAmongTheKeysOfTheResult) {
  Whole whole;
  whole.Inline = Part{3, 0.5, 0.25, {7, 8000000000}};
  EXPECT_EQ(ResultJson("Test", whole),
            "{\"analysis\":\"Test\",\"count\":3,\"share\":0.5,\"maybe\":0.25,"
            "\"counts\":[7,8000000000]}");
}

TEST(ResultJson, AMissingPartIsNullUnderEachKey) {
  // Among the result's keys a missing part is null key by key; a missing nested object is left
  // out.
  EXPECT_EQ(ResultJson("Test", Whole{}),
            "{\"analysis\":\"Test\",\"count\":null,\"share\":null,\"maybe\":null,"
            "\"counts\":null}");
  Whole nested;
  nested.Nested = Part{1, 1.0, std::nullopt, {}};
  EXPECT_EQ(ResultJson("Test", nested),
            "{\"analysis\":\"Test\",\"count\":null,\"share\":null,\"maybe\":null,"
            "\"counts\":null,\"nested\":{\"count\":1,\"share\":1,\"maybe\":null,\"counts\":[]}}");
}

}  // namespace
}  // namespace ovelt

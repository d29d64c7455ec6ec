#pragma once
// The JSON of a result, made from the one declaration of its fields. A result struct names each
// field once, in a member template `Visit`:
//
//   template <class V> void Visit(V& v) const {
//     v.Integer("net_sites", NetSites);
//     v.Number("pi", Pi);
//     v.Optional("tajima_d", D);            // std::optional<double>: null when not determined
//     v.Text("significance", Mark);
//     v.Object("sliding_window", Windows);  // a struct with its own Visit, or an optional one
//     v.Array("windows", Rows);             // a vector of structs with their own Visit
//   }
//
// The same quantity has the same key in every command (the README lists them); a value that
// cannot be determined is null; counts are integers.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/json_text.h"

namespace ovelt {

class JsonFields {
 public:
  explicit JsonFields(JsonText& json) : json_(json) {}

  void Integer(std::string_view key, int64_t value) { json_.Integer(key, value); }
  void Number(std::string_view key, double value) { json_.Number(key, value); }
  void Bool(std::string_view key, bool value) { json_.Bool(key, value); }
  void Text(std::string_view key, std::string_view value) { json_.String(key, value); }
  void Numbers(std::string_view key, const std::vector<double>& values) {
    json_.Numbers(key, values);
  }
  void Integers(std::string_view key, const std::vector<int32_t>& values) {
    json_.BeginArray(key);
    for (const int32_t value : values) json_.Integer({}, value);
    json_.EndArray();
  }
  void Optional(std::string_view key, const std::optional<double>& value) {
    if (value) {
      json_.Number(key, *value);
    } else {
      json_.Null(key);
    }
  }
  void OptionalInteger(std::string_view key, const std::optional<int64_t>& value) {
    if (value) {
      json_.Integer(key, *value);
    } else {
      json_.Null(key);
    }
  }
  template <class T>
  void Object(std::string_view key, const T& value) {
    json_.BeginObject(key);
    value.Visit(*this);
    json_.EndObject();
  }
  // An optional part: written when it was computed, left out when it was not asked for.
  template <class T>
  void Object(std::string_view key, const std::optional<T>& value) {
    if (value) Object(key, *value);
  }
  template <class T>
  void Array(std::string_view key, const std::vector<T>& rows) {
    json_.BeginArray(key);
    for (const T& row : rows) {
      json_.BeginObject();
      row.Visit(*this);
      json_.EndObject();
    }
    json_.EndArray();
  }

 private:
  JsonText& json_;
};

// The result as one JSON object, its analysis's title first.
template <class Result>
[[nodiscard]] std::string ResultJson(const std::string& analysis, const Result& result) {
  JsonText json;
  json.BeginObject();
  json.String("analysis", analysis);
  JsonFields fields(json);
  result.Visit(fields);
  json.EndObject();
  return json.Text();
}

}  // namespace ovelt

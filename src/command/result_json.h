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
//     v.Fields(Variances);                  // an optional struct's keys among these: null if none
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
  template <class Int>
  void Integers(std::string_view key, const std::vector<Int>& values) {
    json_.BeginArray(key);
    for (const Int value : values) json_.Integer({}, static_cast<int64_t>(value));
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
  // The keys of a part that may be missing, written among the result's own: its values, or null
  // under each of its keys when it was not determined, so that a script finds every key.
  template <class T>
  void Fields(const std::optional<T>& part) {
    if (part) {
      part->Visit(*this);
    } else {
      NullFields nulls{json_};
      T{}.Visit(nulls);
    }
  }

 private:
  // Writes null under every key a Visit names.
  struct NullFields {
    JsonText& json;
    void Integer(std::string_view key, int64_t) { json.Null(key); }
    void Number(std::string_view key, double) { json.Null(key); }
    void Bool(std::string_view key, bool) { json.Null(key); }
    void Text(std::string_view key, std::string_view) { json.Null(key); }
    template <class Values>
    void Numbers(std::string_view key, const Values&) { json.Null(key); }
    template <class Values>
    void Integers(std::string_view key, const Values&) { json.Null(key); }
    template <class Value>
    void Optional(std::string_view key, const Value&) { json.Null(key); }
    template <class Value>
    void OptionalInteger(std::string_view key, const Value&) { json.Null(key); }
    template <class Part>
    void Object(std::string_view key, const Part&) { json.Null(key); }
    template <class Rows>
    void Array(std::string_view key, const Rows&) { json.Null(key); }
    template <class Part>
    void Fields(const std::optional<Part>&) { NullFields nulls{json}; Part{}.Visit(nulls); }
  };

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

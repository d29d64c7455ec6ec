#pragma once
// A small writer of JSON text for the --json output of the command line: a result struct
// written as one object of numbers, texts, arrays and nested objects. Numbers are written in
// their shortest form that reads back as the very double that was computed; values that are
// not finite are written as null.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ovelt {

class JsonText {
 public:
  JsonText& BeginObject(std::string_view key = {});
  JsonText& EndObject();
  JsonText& BeginArray(std::string_view key = {});
  JsonText& EndArray();

  JsonText& Number(std::string_view key, double value);
  JsonText& Integer(std::string_view key, int64_t value);
  JsonText& Bool(std::string_view key, bool value);
  JsonText& String(std::string_view key, std::string_view value);
  JsonText& Null(std::string_view key);
  JsonText& Numbers(std::string_view key, const std::vector<double>& values);

  // Array elements have no key: pass {}.
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  void Key(std::string_view key);
  static std::string Quoted(std::string_view text);
  static std::string NumberText(double value);

  std::string text_;
  std::vector<bool> first_;  // per open container: nothing written in it yet
};

}  // namespace ovelt

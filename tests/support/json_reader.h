#pragma once
// A small reader of JSON text for the tests of the --json output: the text becomes a tree of
// values that a test walks by key and index. Numbers keep the text they were written as, so
// that a test can tell an integer (no point, no exponent) from a real number. Malformed text
// throws std::runtime_error with the offset where reading stopped.

#include <cctype>
#include <cstddef>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ovelt::testing {

class JsonValue {
 public:
  enum class Kind { kNull, kBool, kNumber, kString, kArray, kObject };

  [[nodiscard]] Kind kind() const { return kind_; }
  [[nodiscard]] bool IsNull() const { return kind_ == Kind::kNull; }
  [[nodiscard]] bool IsNumber() const { return kind_ == Kind::kNumber; }
  // A number written without a decimal point or an exponent.
  [[nodiscard]] bool IsInteger() const {
    return kind_ == Kind::kNumber && text_.find_first_of(".eE") == std::string::npos;
  }
  [[nodiscard]] double Number() const {
    Expect(Kind::kNumber, "a number");
    return std::stod(text_);
  }
  [[nodiscard]] long long Integer() const {
    if (!IsInteger()) throw std::runtime_error("not an integer: " + text_);
    return std::stoll(text_);
  }
  [[nodiscard]] bool Bool() const {
    Expect(Kind::kBool, "a boolean");
    return text_ == "true";
  }
  [[nodiscard]] const std::string& Text() const {
    Expect(Kind::kString, "a string");
    return text_;
  }
  [[nodiscard]] bool Has(const std::string& key) const {
    return kind_ == Kind::kObject && members_.count(key) != 0;
  }
  // The member `key` of an object; throws when there is none.
  [[nodiscard]] const JsonValue& operator[](const std::string& key) const {
    Expect(Kind::kObject, "an object");
    const auto found = members_.find(key);
    if (found == members_.end()) throw std::runtime_error("no member \"" + key + "\"");
    return *found->second;
  }
  [[nodiscard]] const JsonValue& operator[](size_t index) const {
    Expect(Kind::kArray, "an array");
    return *items_.at(index);
  }
  [[nodiscard]] size_t size() const {
    return kind_ == Kind::kArray ? items_.size() : members_.size();
  }
  // The keys of an object in the order they were written.
  [[nodiscard]] const std::vector<std::string>& Keys() const { return keys_; }

  [[nodiscard]] static JsonValue Parse(const std::string& text) {
    size_t at = 0;
    JsonValue value = ReadValue(text, at);
    SkipBlanks(text, at);
    if (at != text.size()) Fail(at, "text after the value");
    return value;
  }

 private:
  void Expect(Kind kind, const char* what) const {
    if (kind_ != kind) throw std::runtime_error(std::string("not ") + what);
  }
  [[noreturn]] static void Fail(size_t at, const std::string& why) {
    throw std::runtime_error("JSON: " + why + " at offset " + std::to_string(at));
  }
  static void SkipBlanks(const std::string& s, size_t& at) {
    while (at < s.size() && std::isspace(static_cast<unsigned char>(s[at]))) ++at;
  }
  static bool Take(const std::string& s, size_t& at, const std::string& word) {
    if (s.compare(at, word.size(), word) != 0) return false;
    at += word.size();
    return true;
  }
  static std::string ReadString(const std::string& s, size_t& at) {
    if (at >= s.size() || s[at] != '"') Fail(at, "a string expected");
    ++at;
    std::string out;
    while (at < s.size() && s[at] != '"') {
      char c = s[at++];
      if (c == '\\') {
        if (at >= s.size()) Fail(at, "an escape cut short");
        const char e = s[at++];
        switch (e) {
          case 'n': c = '\n'; break;
          case 't': c = '\t'; break;
          case 'r': c = '\r'; break;
          case 'b': c = '\b'; break;
          case 'f': c = '\f'; break;
          case 'u': {
            if (at + 4 > s.size()) Fail(at, "a \\u escape cut short");
            const unsigned long code = std::stoul(s.substr(at, 4), nullptr, 16);
            at += 4;
            if (code >= 0x80) Fail(at, "a \\u escape beyond ASCII");
            c = static_cast<char>(code);
            break;
          }
          default: c = e; break;  // \" \\ \/
        }
      }
      out += c;
    }
    if (at >= s.size()) Fail(at, "an unclosed string");
    ++at;
    return out;
  }
  static JsonValue ReadValue(const std::string& s, size_t& at) {
    SkipBlanks(s, at);
    if (at >= s.size()) Fail(at, "a value expected");
    JsonValue v;
    const char c = s[at];
    if (c == '{') {
      v.kind_ = Kind::kObject;
      ++at;
      SkipBlanks(s, at);
      if (at < s.size() && s[at] == '}') {
        ++at;
        return v;
      }
      while (true) {
        SkipBlanks(s, at);
        std::string key = ReadString(s, at);
        SkipBlanks(s, at);
        if (!Take(s, at, ":")) Fail(at, "':' expected");
        if (v.members_.count(key) != 0) Fail(at, "a repeated key \"" + key + "\"");
        v.keys_.push_back(key);
        v.members_[key] = std::make_shared<JsonValue>(ReadValue(s, at));
        SkipBlanks(s, at);
        if (Take(s, at, "}")) return v;
        if (!Take(s, at, ",")) Fail(at, "',' or '}' expected");
      }
    }
    if (c == '[') {
      v.kind_ = Kind::kArray;
      ++at;
      SkipBlanks(s, at);
      if (at < s.size() && s[at] == ']') {
        ++at;
        return v;
      }
      while (true) {
        v.items_.push_back(std::make_shared<JsonValue>(ReadValue(s, at)));
        SkipBlanks(s, at);
        if (Take(s, at, "]")) return v;
        if (!Take(s, at, ",")) Fail(at, "',' or ']' expected");
      }
    }
    if (c == '"') {
      v.kind_ = Kind::kString;
      v.text_ = ReadString(s, at);
      return v;
    }
    if (Take(s, at, "null")) return v;
    for (const char* word : {"true", "false"}) {
      if (Take(s, at, word)) {
        v.kind_ = Kind::kBool;
        v.text_ = word;
        return v;
      }
    }
    const size_t start = at;
    if (at < s.size() && s[at] == '-') ++at;
    while (at < s.size() && (std::isdigit(static_cast<unsigned char>(s[at])) || s[at] == '.' ||
                             s[at] == 'e' || s[at] == 'E' || s[at] == '+' || s[at] == '-'))
      ++at;
    if (at == start) Fail(at, "a value expected");
    v.kind_ = Kind::kNumber;
    v.text_ = s.substr(start, at - start);
    return v;
  }

  Kind kind_ = Kind::kNull;
  std::string text_;  // a number's text, a string, "true" or "false"
  std::vector<std::string> keys_;
  std::map<std::string, std::shared_ptr<JsonValue>> members_;
  std::vector<std::shared_ptr<JsonValue>> items_;
};

}  // namespace ovelt::testing

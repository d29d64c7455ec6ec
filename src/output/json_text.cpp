#include "output/json_text.h"

#include <cmath>
#include <cstdio>

#include "output/data_table.h"

namespace ovelt {

void JsonText::Key(std::string_view key) {
  if (!first_.empty()) {
    if (!first_.back()) text_ += ",";
    first_.back() = false;
  }
  if (!key.empty()) text_ += Quoted(key) + ":";
}

std::string JsonText::Quoted(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char buffer[8];
          std::snprintf(buffer, sizeof buffer, "\\u%04x", static_cast<unsigned>(c));
          out += buffer;
        } else {
          out += c;
        }
    }
  }
  return out + "\"";
}

std::string JsonText::NumberText(double value) {
  if (!std::isfinite(value)) return "null";
  return ShortestNumberText(value);
}

JsonText& JsonText::BeginObject(std::string_view key) {
  Key(key);
  text_ += "{";
  first_.push_back(true);
  return *this;
}

JsonText& JsonText::EndObject() {
  text_ += "}";
  first_.pop_back();
  return *this;
}

JsonText& JsonText::BeginArray(std::string_view key) {
  Key(key);
  text_ += "[";
  first_.push_back(true);
  return *this;
}

JsonText& JsonText::EndArray() {
  text_ += "]";
  first_.pop_back();
  return *this;
}

JsonText& JsonText::Number(std::string_view key, double value) {
  Key(key);
  text_ += NumberText(value);
  return *this;
}

JsonText& JsonText::Integer(std::string_view key, int64_t value) {
  Key(key);
  text_ += std::to_string(value);
  return *this;
}

JsonText& JsonText::Bool(std::string_view key, bool value) {
  Key(key);
  text_ += value ? "true" : "false";
  return *this;
}

JsonText& JsonText::String(std::string_view key, std::string_view value) {
  Key(key);
  text_ += Quoted(value);
  return *this;
}

JsonText& JsonText::Null(std::string_view key) {
  Key(key);
  text_ += "null";
  return *this;
}

JsonText& JsonText::Numbers(std::string_view key, const std::vector<double>& values) {
  BeginArray(key);
  for (const double v : values) Number({}, v);
  return EndArray();
}

}  // namespace ovelt

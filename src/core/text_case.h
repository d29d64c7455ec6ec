#pragma once
// Small ASCII text helpers shared by the name look-ups of this folder. Names in data files and
// dialogs are plain ASCII; bytes above 127 are left as they are.

#include <string>

namespace ovelt {

[[nodiscard]] inline std::string ToLowerAscii(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

[[nodiscard]] inline std::string ToUpperAscii(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

[[nodiscard]] inline bool IsAsciiLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

[[nodiscard]] inline bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }

// Without leading and trailing blanks, tabs and line ends.
[[nodiscard]] inline std::string TrimBlanks(const std::string& text) {
  const char* blanks = " \t\r\n";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return "";
  const auto last = text.find_last_not_of(blanks);
  return text.substr(first, last - first + 1);
}

}  // namespace ovelt

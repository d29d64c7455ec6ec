#include "core/utf8_text.h"

namespace ovelt {

namespace {

bool IsContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }

}  // namespace

size_t Utf8CharLength(std::string_view text, size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  size_t length = 1;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
  }
  if (length == 1 || at + length > text.size()) return 1;
  for (size_t k = 1; k < length; ++k)
    if (!IsContinuation(static_cast<unsigned char>(text[at + k]))) return 1;
  // Overlong forms, surrogates and values past U+10FFFF are no valid sequence.
  const auto second = static_cast<unsigned char>(text[at + 1]);
  if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
      (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F))
    return 1;
  return length;
}

size_t BytesOfCharacters(std::string_view text, size_t count) {
  size_t at = 0;
  for (size_t n = 0; n < count && at < text.size(); ++n) at += Utf8CharLength(text, at);
  return at;
}

size_t CharacterCount(std::string_view text) {
  size_t count = 0;
  for (size_t at = 0; at < text.size(); at += Utf8CharLength(text, at)) ++count;
  return count;
}

std::string FitToCharacters(std::string_view text, size_t count) {
  std::string fitted(text.substr(0, BytesOfCharacters(text, count)));
  fitted.append(count - CharacterCount(fitted), ' ');
  return fitted;
}

std::string ShownControls(std::string_view text) {
  std::string shown(text);
  for (char& c : shown) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 32 || code == 127) c = '?';
  }
  return shown;
}

}  // namespace ovelt

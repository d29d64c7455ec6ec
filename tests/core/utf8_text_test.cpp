// Names counted in characters: a UTF-8 letter is one character and is never split; a byte that
// starts no valid sequence counts alone; control characters are shown as "?".

#include "core/utf8_text.h"

#include <gtest/gtest.h>

#include "core/active_data.h"

namespace ovelt {
namespace {

// Every character of `text` whole: no sequence is left without its continuation bytes.
bool IsValidUtf8(const std::string& text) {
  for (size_t at = 0; at < text.size();) {
    const auto c = static_cast<unsigned char>(text[at]);
    const size_t length = Utf8CharLength(text, at);
    if (length == 1 && c >= 0x80) return false;
    at += length;
  }
  return true;
}

TEST(Utf8Text, LengthsOfCharacters) {
  const std::string text = "a\xC3\xA9\xE2\x80\x99\xF0\x9F\x90\x9F";  // a, é, ’, a fish
  EXPECT_EQ(Utf8CharLength(text, 0), 1u);
  EXPECT_EQ(Utf8CharLength(text, 1), 2u);
  EXPECT_EQ(Utf8CharLength(text, 3), 3u);
  EXPECT_EQ(Utf8CharLength(text, 6), 4u);
  EXPECT_EQ(CharacterCount(text), 4u);
  // Bytes that start no valid sequence count one each: Latin-1, a cut letter, an overlong form.
  EXPECT_EQ(CharacterCount("caf\xE9"), 4u);
  EXPECT_EQ(CharacterCount("\xC3"), 1u);
  EXPECT_EQ(CharacterCount("\xE0\x80\x80"), 3u);
  EXPECT_EQ(CharacterCount("\xED\xA0\x80"), 3u);  // a surrogate
}

TEST(Utf8Text, CutsAndPadsAtCharacters) {
  const std::string name = "M\xC3\xBCller_\xC3\x98stergaard";  // Müller_Østergaard
  EXPECT_EQ(BytesOfCharacters(name, 2), 3u);
  const std::string ten = FitToCharacters(name, 10);
  EXPECT_EQ(ten, "M\xC3\xBCller_\xC3\x98st");
  EXPECT_EQ(CharacterCount(ten), 10u);
  EXPECT_TRUE(IsValidUtf8(ten));
  EXPECT_EQ(FitToCharacters("ab", 4), "ab  ");
  // A cut that falls inside a letter of three bytes keeps the letter out whole.
  EXPECT_EQ(FitToCharacters("ab\xE2\x80\x99x", 3), "ab\xE2\x80\x99");
  EXPECT_EQ(FitToCharacters("ab\xE2\x80\x99x", 2), "ab");
}

TEST(Utf8Text, ControlCharactersAreShownAsQuestionMarks) {
  EXPECT_EQ(ShownControls("a\x1b[31mred\x07\x7f\tz"), "a?[31mred???z");
  EXPECT_EQ(ShownControls("plain \xC3\xA9"), "plain \xC3\xA9");
}

// The name field of 20 characters: cut at a character, padded to 20 characters, no control
// character left.
TEST(Utf8Text, TheNameFieldHoldsTwentyCharacters) {
  const std::string long_name = "\xC3\x89" "chantillon_num\xC3\xA9ro_vingt-et-un";
  const std::string field = FixedName(long_name);
  EXPECT_EQ(CharacterCount(field), 20u);
  EXPECT_TRUE(IsValidUtf8(field));
  EXPECT_EQ(field, "\xC3\x89" "chantillon_num\xC3\xA9ro_v");
  EXPECT_EQ(FixedName("ab\x1b"), "ab?" + std::string(17, ' '));
  EXPECT_EQ(FixedName("plain"), "plain" + std::string(15, ' '));
}

}  // namespace
}  // namespace ovelt

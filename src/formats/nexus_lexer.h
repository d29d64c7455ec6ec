#pragma once
// Tokens of a NEXUS text (Maddison, Swofford and Maddison 1997): words, quoted words, and the
// punctuation marks that stand alone. Blanks, line ends and comments in square brackets, which
// may nest, separate tokens and are skipped.
//
// Two readings wider than the standard's, because files in the wild depend on them:
// "-" and "+" belong to words (taxon names such as A-2301 are written unquoted; a list item
// "1-10" is split by the list reader), and a text in double quotes is one token as a text in
// single quotes is (SYMBOLS="ACGT").

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ovelt {

struct NexusToken {
  enum Type { kWord, kQuoted, kPunct, kEnd };
  Type type = kEnd;
  std::string text;  // a quoted token without its quotes, doubled quotes made single
  size_t begin = 0;  // span in the text, quotes included
  size_t end = 0;

  [[nodiscard]] bool is(char punct) const {
    return type == kPunct && text.size() == 1 && text[0] == punct;
  }
  // A word equal to `upper` without regard to case.
  [[nodiscard]] bool is_word(std::string_view upper) const;
  [[nodiscard]] std::string upper() const;
};

// True for the marks that are tokens by themselves.
[[nodiscard]] bool IsNexusPunctuation(char c);
[[nodiscard]] inline bool IsNexusBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

class NexusLexer {
 public:
  explicit NexusLexer(std::string_view text, size_t pos = 0) : text_(text), pos_(pos) {}

  // The next token; kEnd at the end of the text.
  NexusToken Next();
  // The next token without moving on.
  NexusToken Peek();

  [[nodiscard]] size_t pos() const { return pos_; }
  void set_pos(size_t pos) { pos_ = pos; }

  // Moves to the next ";" token (not taken) past every other token, comment and quoted name,
  // without making the tokens: the fast way over a MATRIX. True when one was found; otherwise
  // the position is the end of the text. `passed`, when given, is told every few megabytes of
  // the part [from, to) passed over.
  bool SkipToSemicolon(const std::function<void(size_t, size_t)>& passed = {});

 private:
  void SkipBlanksAndComments();

  std::string_view text_;
  size_t pos_;
};

// Position just after the comment that opens at `pos` (text[pos] == '['), nested comments
// included; the end of the text when it is never closed.
[[nodiscard]] size_t SkipNexusComment(std::string_view text, size_t pos);

// The display form of a taxon name: a quoted name as it stands inside its quotes, an unquoted
// one with each underscore read as a blank, as the standard has it.
[[nodiscard]] std::string NexusNameText(const NexusToken& token);
// The key under which two spellings of one name meet: upper case, underscores as blanks
// ('t2 the name', t2_the_name and 'T2 THE_NAME' are one name).
[[nodiscard]] std::string NexusNameKey(std::string_view name);

}  // namespace ovelt

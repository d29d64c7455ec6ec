#include "formats/nexus_lexer.h"

#include <algorithm>
#include <cstring>

#include "core/text_case.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace ovelt {

bool IsNexusPunctuation(char c) {
  switch (c) {
    case '(':
    case ')':
    case '[':
    case ']':
    case '{':
    case '}':
    case '/':
    case '\\':
    case ',':
    case ';':
    case ':':
    case '=':
    case '*':
    case '\'':
    case '"':
    case '`':
    case '<':
    case '>':
      return true;
    default:
      return false;
  }
}

bool NexusToken::is_word(std::string_view upper_text) const {
  if (type != kWord || text.size() != upper_text.size()) return false;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c != upper_text[i]) return false;
  }
  return true;
}

std::string NexusToken::upper() const {
  return ToUpperAscii(text);
}

size_t SkipNexusComment(std::string_view text, size_t pos) {
  int depth = 0;
  for (; pos < text.size(); ++pos) {
    if (text[pos] == '[') {
      ++depth;
    } else if (text[pos] == ']') {
      if (--depth == 0) return pos + 1;
    }
  }
  return text.size();
}

namespace {

bool StopsTheSkip(char c) {
  return c == ';' || c == '[' || c == '\'' || c == '"';
}

// The first of ";", "[" and the two quotation marks at or after `pos`, or the end.
size_t NextStop(std::string_view text, size_t pos) {
  const char* p = text.data();
  const size_t n = text.size();
#if defined(__SSE2__)
  const __m128i semicolon = _mm_set1_epi8(';'), open = _mm_set1_epi8('[');
  const __m128i single = _mm_set1_epi8('\''), twin = _mm_set1_epi8('"');
  while (pos + 16 <= n) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + pos));
    const __m128i hit =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(v, semicolon), _mm_cmpeq_epi8(v, open)),
                     _mm_or_si128(_mm_cmpeq_epi8(v, single), _mm_cmpeq_epi8(v, twin)));
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(hit));
    if (mask != 0) return pos + static_cast<size_t>(__builtin_ctz(mask));
    pos += 16;
  }
#endif
  while (pos < n && !StopsTheSkip(p[pos])) ++pos;
  return pos;
}

}  // namespace

// A quotation mark is punctuation, so it always opens a token: every other character, words and
// punctuation alike, is passed over until a ";" outside comments and quoted names.
bool NexusLexer::SkipToSemicolon(const std::function<void(size_t, size_t)>& passed) {
  constexpr size_t kStep = size_t{2} << 20;
  size_t told = pos_;
  for (;;) {
    if (passed) {
      // In steps, so that a long run without a stop still tells as it goes.
      while (true) {
        const size_t to = std::min(text_.size(), told + kStep);
        const size_t stop = NextStop(text_.substr(0, to), pos_);
        if (stop < to || to == text_.size()) {
          pos_ = stop;
          break;
        }
        pos_ = to;
        passed(told, to);
        told = to;
      }
    } else {
      pos_ = NextStop(text_, pos_);
    }
    if (pos_ >= text_.size()) return false;
    const char c = text_[pos_];
    if (c == ';') return true;
    if (c == '[') {
      pos_ = SkipNexusComment(text_, pos_);
      continue;
    }
    // A quoted token, its doubled marks included.
    ++pos_;
    while (pos_ < text_.size()) {
      if (text_[pos_] == c) {
        if (pos_ + 1 < text_.size() && text_[pos_ + 1] == c) {
          pos_ += 2;
          continue;
        }
        ++pos_;
        break;
      }
      ++pos_;
    }
  }
}

void NexusLexer::SkipBlanksAndComments() {
  while (pos_ < text_.size()) {
    const char c = text_[pos_];
    if (IsNexusBlank(c)) {
      ++pos_;
    } else if (c == '[') {
      pos_ = SkipNexusComment(text_, pos_);
    } else {
      return;
    }
  }
}

NexusToken NexusLexer::Next() {
  SkipBlanksAndComments();
  NexusToken token;
  token.begin = pos_;
  if (pos_ >= text_.size()) {
    token.end = pos_;
    return token;
  }
  const char c = text_[pos_];
  if (c == '\'' || c == '"') {
    token.type = NexusToken::kQuoted;
    ++pos_;
    while (pos_ < text_.size()) {
      if (text_[pos_] == c) {
        if (pos_ + 1 < text_.size() && text_[pos_ + 1] == c) {
          token.text += c;
          pos_ += 2;
          continue;
        }
        ++pos_;
        break;
      }
      token.text += text_[pos_++];
    }
  } else if (IsNexusPunctuation(c)) {
    token.type = NexusToken::kPunct;
    token.text = std::string(1, c);
    ++pos_;
  } else {
    token.type = NexusToken::kWord;
    const size_t start = pos_;
    while (pos_ < text_.size() && !IsNexusBlank(text_[pos_]) && !IsNexusPunctuation(text_[pos_]))
      ++pos_;
    token.text = std::string(text_.substr(start, pos_ - start));
  }
  token.end = pos_;
  return token;
}

NexusToken NexusLexer::Peek() {
  const size_t saved = pos_;
  NexusToken token = Next();
  pos_ = saved;
  return token;
}

std::string NexusNameText(const NexusToken& token) {
  std::string name = token.text;
  if (token.type != NexusToken::kQuoted) {
    for (char& c : name) {
      if (c == '_') c = ' ';
    }
  }
  return name;
}

std::string NexusNameKey(std::string_view name) {
  std::string key = ToUpperAscii(std::string(name));
  for (char& c : key) {
    if (c == '_') c = ' ';
  }
  return TrimBlanks(key);
}

}  // namespace ovelt

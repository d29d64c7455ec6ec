#pragma once
// Sequence names counted in characters rather than bytes, so that a cut never splits a letter
// written in UTF-8 (a name field of 20 characters, a PHYLIP name of 10). A byte that does not
// start a valid UTF-8 sequence (a Latin-1 letter, say) counts as one character of its own, so
// that a plain ASCII or Latin-1 name is counted as it always was.

#include <cstddef>
#include <string>
#include <string_view>

namespace ovelt {

// The length in bytes of the character that starts at `at`: 2 to 4 for a valid UTF-8 sequence,
// 1 for an ASCII byte or any byte that starts none.
[[nodiscard]] size_t Utf8CharLength(std::string_view text, size_t at);

// The number of bytes of the first `count` characters (all of `text` when it has fewer).
[[nodiscard]] size_t BytesOfCharacters(std::string_view text, size_t count);

// The number of characters of `text`.
[[nodiscard]] size_t CharacterCount(std::string_view text);

// Cut to `count` characters, then padded with blanks to `count` characters.
[[nodiscard]] std::string FitToCharacters(std::string_view text, size_t count);

// A control character (codes 0 to 31 and 127) made visible as "?", as a terminal listing shows
// it: such bytes would move a report's columns, or act on the terminal that shows them.
[[nodiscard]] std::string ShownControls(std::string_view text);

}  // namespace ovelt

#pragma once
// The rules that turn a character of a sequence line into a cell, shared by every reader:
// A C G T and "-" are kept, U is stored as T, N and "?" as "?", "." takes the first sequence's
// cell at the same site, blanks and tabs are skipped, and anything else is refused. Lower case
// reads as upper case. A 256-entry table gives the rule of each byte, so a line is walked with
// one lookup per character.

#include <array>
#include <cstdint>
#include <string_view>

namespace ovelt {

// Codes of the table below this value are actions; from it on the code is the stored cell.
enum CellAction : uint8_t {
  kCellRefuse = 0,   // not a cell: the reader reports the character
  kCellSkip = 1,     // blank or tab
  kCellMatch = 2,    // the matching symbol
  kCellStop = 3,     // ends the sequence (">" in FASTA, "*" and ">" in NBRF/PIR)
  kCellQuote = 4,    // MEGA: a comment in quotation marks
  kCellCommand = 5,  // MEGA: a command statement from "!" up to ";"
};
inline constexpr uint8_t kFirstStoredCell = 32;

struct CellTable {
  std::array<uint8_t, 256> code{};
  // True when A, C, G, T, "-" and "?" are each stored as themselves: a run of them is copied
  // as it stands (set by the Make functions below).
  bool plain_copies = false;
  [[nodiscard]] uint8_t of(char c) const { return code[static_cast<unsigned char>(c)]; }
};

// The plain rules with "." as the matching symbol; `stop_chars` end a sequence.
[[nodiscard]] CellTable MakeCellTable(std::string_view stop_chars = {});

// The MEGA rules: the user's symbols take the places of ".", "-" and "?" (N still stores "?"),
// a quotation mark opens a comment and "!" a command statement.
[[nodiscard]] CellTable MakeMegaCellTable(char match, char gap, char missing);

// The letters whose refusal adds the note on ambiguity codes (after conversion to upper case).
[[nodiscard]] bool IsAmbiguityCode(char upper);

[[nodiscard]] char UpperCase(char c);

}  // namespace ovelt

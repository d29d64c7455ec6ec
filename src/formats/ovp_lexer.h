#pragma once
// Tokens of a line of a preferred/unpreferred codon table file (".ovp"), the same text as the
// CODONUSAGE block of a NEXUS file. Blanks and tabs separate tokens; letters, digits, "*", "_"
// and "." form words; ":", ",", ";" and "=" stand alone; "#" or the end of the line ends the
// line's tokens. Keywords are recognised without regard to case.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ovelt {

enum OvpTokenCode : int {
  kOvpBad = -2,   // a character that no token may hold
  kOvpWord = -1,  // any other word: a name, a genetic-code keyword, a codon
  kOvpBegin = 0,
  kOvpEnd = 1,
  kOvpCodonUsage = 2,
  kOvpColon = 3,
  kOvpSemicolon = 4,
  kOvpComma = 5,
  kOvpPref1 = 6,  // PREF*
  kOvpPref2 = 7,  // PREF**
  kOvpPrefUnPrefCodons = 10,
  kOvpPref3 = 11,  // PREF***
  kOvpEquals = 12,
  kOvpGeneticCode = 13,
  kOvpUnknownClass = 16,
};

struct OvpToken {
  int code = kOvpWord;
  std::string text;  // as written
};

// The tokens of one line (its line end, if any, ends it like "#").
[[nodiscard]] std::vector<OvpToken> lexyacc(std::string_view line);

// Genetic code of a keyword of the file: "UNIVERSAL" 1, "MTDNA.MAM" 2, ... and 10 for any
// word that names none of codes 1 to 9.
[[nodiscard]] int16_t getToken(const std::string& word);

}  // namespace ovelt

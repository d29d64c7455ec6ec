#include "formats/ovp_lexer.h"

#include <utility>

#include "core/text_case.h"

namespace ovelt {

namespace {

bool IsWordChar(char c) {
  return IsAsciiLetter(c) || IsAsciiDigit(c) || c == '*' || c == '_' || c == '.';
}

int CodeOfWord(const std::string& upper) {
  static const std::pair<const char*, int> kKeywords[] = {
      {"BEGIN", kOvpBegin},
      {"END", kOvpEnd},
      {"CODONUSAGE", kOvpCodonUsage},
      {"PREF*", kOvpPref1},
      {"PREF**", kOvpPref2},
      {"PREF***", kOvpPref3},
      {"PREFUNPREFCODONS", kOvpPrefUnPrefCodons},
      {"GENETICCODE", kOvpGeneticCode},
      {"UNKNOWN", kOvpUnknownClass},
  };
  for (const auto& [word, code] : kKeywords) {
    if (upper == word) return code;
  }
  return kOvpWord;
}

int CodeOfMark(char c) {
  switch (c) {
    case ':':
      return kOvpColon;
    case ';':
      return kOvpSemicolon;
    case ',':
      return kOvpComma;
    case '=':
      return kOvpEquals;
    default:
      return kOvpBad;
  }
}

}  // namespace

std::vector<OvpToken> lexyacc(std::string_view line) {
  std::vector<OvpToken> tokens;
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == '#' || c == '\r' || c == '\n') break;
    if (c == ' ' || c == '\t') {
      ++i;
      continue;
    }
    if (IsWordChar(c)) {
      size_t end = i;
      while (end < line.size() && IsWordChar(line[end])) ++end;
      OvpToken token;
      token.text = std::string(line.substr(i, end - i));
      token.code = CodeOfWord(ToUpperAscii(token.text));
      tokens.push_back(std::move(token));
      i = end;
      continue;
    }
    tokens.push_back(OvpToken{CodeOfMark(c), std::string(1, c)});
    ++i;
  }
  return tokens;
}

int16_t getToken(const std::string& word) {
  static const std::pair<const char*, int16_t> kCodes[] = {
      {"UNIVNUC", 1},          {"UNIVERSAL", 1},         {"UNIVERSAL.EXT", 1},
      {"MTDNA.MAM", 2},        {"UNIVMTDNA", 2},         {"MTDNA.MAM.EXT", 2},
      {"MTDNA.DROS", 3},       {"MTDNA.DROS.EXT", 3},    {"MTDNA.YEAST", 4},
      {"MTDNA.YEAST.EXT", 4},  {"MTDNA.MOLDPROT", 5},    {"MTDNA.ECHINODERM", 6},
      {"MTDNA.ECHINODERM.EXT", 6}, {"MTDNA.FLATWORM", 7}, {"MTDNA.FLATWORM.EXT", 7},
      {"NUCLEAR.CILIATE", 8},  {"NUCLEAR.CILIATE.EXT", 8}, {"NUCLEAR.CANDIDA", 9},
      {"NUCLEAR.CANDIDA.EXT", 9},
  };
  const std::string upper = ToUpperAscii(word);
  for (const auto& [keyword, code] : kCodes) {
    if (upper == keyword) return code;
  }
  return 10;
}

}  // namespace ovelt

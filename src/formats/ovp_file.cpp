#include "formats/ovp_file.h"

#include <fstream>
#include <sstream>

#include "core/genetic_code.h"
#include "formats/ovp_lexer.h"

namespace ovelt {

namespace {

bool Is(const std::vector<OvpToken>& tokens, std::initializer_list<int> codes) {
  if (tokens.size() != codes.size()) return false;
  size_t i = 0;
  for (int code : codes) {
    if (tokens[i++].code != code) return false;
  }
  return true;
}

int StatusOfHead(int code) {
  switch (code) {
    case kOvpPref1:
      return kPreferred1;
    case kOvpPref2:
      return kPreferred2;
    case kOvpPref3:
      return kPreferred3;
    case kOvpUnknownClass:
      return kUnknownPreference;
    default:
      return -1;
  }
}

// Codon index of a three-letter word (U read as T), or 0.
int CodonOfWord(const std::string& word) {
  if (word.size() != 3) return 0;
  char cells[3];
  for (size_t i = 0; i < 3; ++i) {
    char c = word[i];
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    cells[i] = c == 'U' ? 'T' : c;
  }
  return CodonIndex(cells[0], cells[1], cells[2]);
}

}  // namespace

bool OVPFile::Fail(const char* kind, int number) {
  message_ = std::string(kind) + " error in #" + std::to_string(number);
  return false;
}

bool OVPFile::Parse(std::string_view text) {
  int number = 0;
  size_t pos = 0;
  while (pos < text.size()) {
    size_t end = text.find_first_of("\r\n", pos);
    if (end == std::string_view::npos) end = text.size();
    ++number;
    if (!Line(text.substr(pos, end - pos), number)) return false;
    pos = end;
    if (pos < text.size() && text[pos] == '\r') ++pos;
    if (end < text.size() && text[end] == '\r' && pos < text.size() && text[pos] == '\n') {
      ++pos;
    } else if (end < text.size() && text[end] == '\n') {
      ++pos;
    }
  }
  switch (state_) {
    case State::kFinished:
      return true;
    case State::kStart:
      bad_content_ = true;
      message_.clear();
      return false;
    default:
      return Fail("Parser", number);
  }
}

bool OVPFile::Line(std::string_view line, int number) {
  const std::vector<OvpToken> tokens = lexyacc(line);
  for (const OvpToken& token : tokens) {
    if (token.code == kOvpBad) return Fail("Lexical", number);
  }
  if (tokens.empty()) return true;
  switch (state_) {
    case State::kStart:
      if (!Is(tokens, {kOvpBegin, kOvpCodonUsage, kOvpSemicolon})) return Fail("Parser", number);
      state_ = State::kBlock;
      return true;
    case State::kBlock:
      if (Is(tokens, {kOvpEnd, kOvpSemicolon})) {
        state_ = State::kFinished;
        return true;
      }
      if (!OpenTable(tokens)) return Fail("Parser", number);
      state_ = State::kList;
      return true;
    case State::kList:
      return ListLine(tokens, number);
    case State::kFinished:
      return Fail("Parser", number);
  }
  return Fail("Parser", number);
}

bool OVPFile::OpenTable(const std::vector<OvpToken>& tokens) {
  int16_t gc = 0;
  std::string name;
  if (Is(tokens, {kOvpPrefUnPrefCodons, kOvpGeneticCode, kOvpEquals, kOvpWord, kOvpWord,
                  kOvpEquals})) {
    gc = getToken(tokens[3].text);
    name = tokens[4].text;
  } else if (Is(tokens, {kOvpPrefUnPrefCodons, kOvpWord, kOvpEquals})) {
    gc = current_gc_;
    name = tokens[1].text;
  } else {
    return false;
  }
  if (gc < 1 || gc > kGeneticCodeCount) return false;
  table_ = CodPrefUnPref();
  table_.creat(gc, kUnpreferred);
  table_.sName(name);
  table_.sFile(1);
  for (bool& flag : listed_) flag = false;
  for (bool& flag : class_used_) flag = false;
  class_status_ = -1;
  return true;
}

bool OVPFile::ListLine(const std::vector<OvpToken>& tokens, int number) {
  size_t i = 0;
  if (tokens.size() >= 2 && StatusOfHead(tokens[0].code) >= 0 && tokens[1].code == kOvpColon) {
    const int status = StatusOfHead(tokens[0].code);
    if (class_status_ >= 0 || class_used_[status]) return Fail("Parser", number);
    class_status_ = status;
    class_used_[status] = true;
    i = 2;
  }
  for (; i < tokens.size(); ++i) {
    const OvpToken& token = tokens[i];
    if (token.code == kOvpComma) {
      if (class_status_ < 0) return Fail("Parser", number);
      class_status_ = -1;
    } else if (token.code == kOvpSemicolon) {
      if (i + 1 != tokens.size()) return Fail("Parser", number);
      class_status_ = -1;
      tables_.push_back(table_);
      last_name_ = table_.name();
      last_gc_ = table_.GC();
      state_ = State::kBlock;
    } else if (token.code == kOvpWord) {
      const int codon = CodonOfWord(token.text);
      if (codon == 0) return Fail("Lexical", number);
      if (class_status_ < 0 || listed_[codon]) return Fail("Parser", number);
      listed_[codon] = true;
      table_.sPrefUnPref(codon, class_status_);
    } else {
      return Fail("Parser", number);
    }
  }
  return true;
}

std::string OvpBadContentText(const std::string& name) {
  return "Input data file: " + name + "\n\n        Data File Error !\n\nBad or unknown file format";
}

std::string ReadOvpFile(const std::string& path, int16_t current_gc, GCPrefUnPref& store) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  if (in) bytes << in.rdbuf();
  if (!in || in.bad()) return "Disk not ready. Data file: " + path;
  OVPFile file(current_gc);
  const bool whole = file.Parse(bytes.str());
  for (const CodPrefUnPref& table : file.tables()) store.creatModifyGC(table);
  if (whole) return "";
  return file.bad_content() ? OvpBadContentText(path) : file.message();
}

}  // namespace ovelt

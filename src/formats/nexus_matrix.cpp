#include "formats/nexus_matrix.h"

#include <algorithm>
#include <array>

#include "formats/nexus_errors.h"

namespace ovelt {

namespace {

enum : uint8_t { kInvalid = 0, kSkip = 1, kMatch = 2 };

using CellCodes = std::array<uint8_t, 256>;

void SetBothCases(CellCodes& codes, char c, uint8_t code) {
  codes[static_cast<unsigned char>(c)] = code;
  if (c >= 'a' && c <= 'z') codes[static_cast<unsigned char>(c - 'a' + 'A')] = code;
  if (c >= 'A' && c <= 'Z') codes[static_cast<unsigned char>(c - 'A' + 'a')] = code;
}

CellCodes MakeCellCodes(const NexusMatrixShape& shape) {
  CellCodes codes{};
  for (char c : {'A', 'C', 'G', 'T'}) SetBothCases(codes, c, static_cast<uint8_t>(c));
  SetBothCases(codes, 'U', 'T');
  SetBothCases(codes, 'N', '?');
  codes['?'] = '?';
  codes['-'] = '-';
  codes[' '] = kSkip;
  codes['\t'] = kSkip;
  codes['\r'] = kSkip;
  SetBothCases(codes, shape.gap, '-');
  SetBothCases(codes, shape.missing, '?');
  if (shape.match != '\0') SetBothCases(codes, shape.match, kMatch);
  return codes;
}

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// A row's name at `pos`: a quoted name, or the run up to a blank or a comment.
NexusToken ReadRowName(std::string_view text, size_t& pos) {
  if (text[pos] == '\'' || text[pos] == '"') {
    NexusLexer lexer(text, pos);
    NexusToken token = lexer.Next();
    pos = lexer.pos();
    return token;
  }
  NexusToken token;
  token.type = NexusToken::kWord;
  token.begin = pos;
  while (pos < text.size() && !IsNexusBlank(text[pos]) && text[pos] != '[') ++pos;
  token.end = pos;
  token.text = std::string(text.substr(token.begin, pos - token.begin));
  return token;
}

class MatrixReader {
 public:
  MatrixReader(std::string_view text, const NexusMatrixShape& shape)
      : text_(text), shape_(shape), codes_(MakeCellCodes(shape)) {
    result_.rows.resize(static_cast<size_t>(shape.ntax));
  }

  NexusMatrix Sequential() {
    size_t p = 0;
    for (int32_t t = 0; t < shape_.ntax; ++t) {
      SkipSpace(p);
      if (p >= text_.size()) throw NexusFault(kNexusMissingCell, t + 1);
      if (shape_.row_names) result_.names.push_back(ReadRowName(text_, p));
      std::string& row = Row(t);
      bool line_start = false;
      while (static_cast<int32_t>(row.size()) < shape_.nchar) {
        if (p >= text_.size()) throw NexusFault(kNexusMissingCell, t + 1);
        const char c = text_[p];
        if (c == '\n') {
          line_start = true;
          ++p;
          continue;
        }
        if (c == '[') {
          p = SkipNexusComment(text_, p);
          continue;
        }
        const uint8_t code = codes_[static_cast<unsigned char>(c)];
        if (code == kSkip) {
          ++p;
          continue;
        }
        if (code == kInvalid && line_start) throw NexusFault(kNexusMissingCell, t + 1);
        Store(t, code, c);
        line_start = false;
        ++p;
      }
    }
    SkipSpace(p);
    if (p < text_.size()) throw NexusFault(shape_.block_error);
    return std::move(result_);
  }

  NexusMatrix Interleaved() {
    size_t p = 0;
    int64_t line_index = 0;
    std::string line;
    while (p < text_.size()) {
      NextLine(p, line);
      size_t q = line.find_first_not_of(" \t\r");
      if (q == std::string::npos) continue;
      const int32_t t = static_cast<int32_t>(line_index % shape_.ntax);
      const bool first_block = line_index < shape_.ntax;
      ++line_index;
      if (shape_.row_names) {
        size_t after = q;
        const NexusToken name = ReadRowName(line, after);
        if (first_block) {
          result_.names.push_back(name);
          q = after;
        } else if (NexusNameKey(NexusNameText(name)) ==
                       NexusNameKey(NexusNameText(result_.names[static_cast<size_t>(t)])) ||
                   !AllCells(line)) {
          q = after;
        }
      }
      std::string& row = Row(t);
      for (; q < line.size(); ++q) {
        const char c = line[q];
        const uint8_t code = codes_[static_cast<unsigned char>(c)];
        if (code == kSkip) continue;
        if (static_cast<int32_t>(row.size()) >= shape_.nchar && code != kInvalid)
          throw NexusFault(shape_.block_error);
        Store(t, code, c);
      }
    }
    for (int32_t t = 0; t < shape_.ntax; ++t) {
      if (static_cast<int32_t>(Row(t).size()) < shape_.nchar)
        throw NexusFault(kNexusMissingCell, t + 1);
    }
    if (shape_.row_names && static_cast<int32_t>(result_.names.size()) < shape_.ntax)
      throw NexusFault(kNexusMissingCell, static_cast<long>(result_.names.size()) + 1);
    return std::move(result_);
  }

 private:
  std::string& Row(int32_t t) { return result_.rows[static_cast<size_t>(t)]; }

  void SkipSpace(size_t& p) const {
    while (p < text_.size()) {
      if (IsNexusBlank(text_[p])) {
        ++p;
      } else if (text_[p] == '[') {
        p = SkipNexusComment(text_, p);
      } else {
        return;
      }
    }
  }

  // The next line from `p`, comments removed (a comment may run over several lines).
  void NextLine(size_t& p, std::string& line) const {
    line.clear();
    while (p < text_.size() && text_[p] != '\n') {
      if (text_[p] == '[') {
        p = SkipNexusComment(text_, p);
      } else {
        line += text_[p++];
      }
    }
    if (p < text_.size()) ++p;
  }

  [[nodiscard]] bool AllCells(const std::string& line) const {
    return std::all_of(line.begin(), line.end(), [this](char c) {
      return codes_[static_cast<unsigned char>(c)] != kInvalid;
    });
  }

  void Store(int32_t t, uint8_t code, char c) {
    std::string& row = Row(t);
    if (code == kInvalid) throw NexusFault(kNexusInvalidCell, t + 1, Upper(c));
    if (code == kMatch) {
      const size_t site = row.size();
      if (t == 0 || Row(0).size() <= site) throw NexusFault(kNexusMatchInFirst, static_cast<long>(site) + 1);
      row += Row(0)[site];
      return;
    }
    if (row.capacity() == 0) {
      row.reserve(std::min(static_cast<size_t>(shape_.nchar), text_.size()));
    }
    row += static_cast<char>(code);
  }

  std::string_view text_;
  const NexusMatrixShape& shape_;
  CellCodes codes_;
  NexusMatrix result_;
};

}  // namespace

NexusMatrix ReadNexusMatrix(std::string_view content, const NexusMatrixShape& shape) {
  MatrixReader reader(content, shape);
  return shape.interleaved ? reader.Interleaved() : reader.Sequential();
}

}  // namespace ovelt

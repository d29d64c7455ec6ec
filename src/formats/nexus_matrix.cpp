#include "formats/nexus_matrix.h"

#include <algorithm>
#include <array>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "formats/nexus_errors.h"
#include "formats/sequence_cells.h"

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

// The first "\n" or "[" at or after `pos` (the end of the text when none): one pass finds both
// the end of a line and whether a comment opens in it.
size_t LineEndOrComment(std::string_view text, size_t pos) {
  const char* p = text.data();
  const size_t n = text.size();
#if defined(__SSE2__)
  const __m128i lf = _mm_set1_epi8('\n'), open = _mm_set1_epi8('[');
  while (pos + 16 <= n) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + pos));
    const auto mask = static_cast<unsigned>(
        _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(v, lf), _mm_cmpeq_epi8(v, open))));
    if (mask != 0) return pos + static_cast<size_t>(__builtin_ctz(mask));
    pos += 16;
  }
#endif
  while (pos < n && p[pos] != '\n' && p[pos] != '[') ++pos;
  return pos;
}

// True when A, C, G, T, "-" and "?" are each stored as themselves.
bool CopiesPlainCells(const CellCodes& codes) {
  for (char c : {'A', 'C', 'G', 'T', '-', '?'}) {
    if (codes[static_cast<unsigned char>(c)] != static_cast<uint8_t>(c)) return false;
  }
  return true;
}

char Upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

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
  // Every row is made at once, its cells written in place as they come (the caller has checked
  // that the text is long enough to hold NTAX x NCHAR cells).
  MatrixReader(std::string_view text, const NexusMatrixShape& shape)
      : text_(text),
        shape_(shape),
        codes_(MakeCellCodes(shape)),
        plain_(CopiesPlainCells(codes_)),
        filled_(static_cast<size_t>(shape.ntax), 0) {
    result_.cells.set_sites(shape.nchar);
    result_.cells.reserve_sequences(shape.ntax);
    rows_.reserve(static_cast<size_t>(shape.ntax));
    for (int32_t t = 0; t < shape.ntax; ++t)
      rows_.push_back(result_.cells.append_unfilled_sequence());
  }

  NexusMatrix Sequential() {
    size_t p = 0;
    for (int32_t t = 0; t < shape_.ntax; ++t) {
      Progress(p);
      SkipSpace(p);
      if (p >= text_.size()) throw NexusFault(kNexusMissingCell, t + 1);
      if (shape_.row_names) result_.names.push_back(ReadRowName(text_, p));
      bool line_start = false;
      while (Filled(t) < shape_.nchar) {
        if (p >= text_.size()) throw NexusFault(kNexusMissingCell, t + 1);
        const size_t run = CopyRun(t, text_.data() + p, text_.size() - p);
        if (run > 0) {
          p += run;
          line_start = false;
          continue;
        }
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
    std::string copy;
    while (p < text_.size()) {
      Progress(p);
      const std::string_view line = NextLine(p, copy);
      size_t q = line.find_first_not_of(" \t\r");
      if (q == std::string::npos) continue;
      const int32_t t = static_cast<int32_t>(line_index % shape_.ntax);
      const bool first_block = line_index < shape_.ntax;
      ++line_index;
      if (shape_.row_names && !first_block && SameUnquotedName(line, q, t)) {
        // The row's name as the first block wrote it, letter for letter: the common case.
      } else if (shape_.row_names) {
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
      while (q < line.size()) {
        const size_t run = CopyRun(t, line.data() + q, line.size() - q);
        q += run;
        if (q >= line.size()) break;
        // A cell beyond NCHAR: the run stopped at the full row, or the character below is one.
        const char c = line[q];
        const uint8_t code = codes_[static_cast<unsigned char>(c)];
        ++q;
        if (code == kSkip) continue;
        if (Filled(t) >= shape_.nchar && code != kInvalid) throw NexusFault(shape_.block_error);
        Store(t, code, c);
      }
    }
    for (int32_t t = 0; t < shape_.ntax; ++t) {
      if (Filled(t) < shape_.nchar) throw NexusFault(kNexusMissingCell, t + 1);
    }
    if (shape_.row_names && static_cast<int32_t>(result_.names.size()) < shape_.ntax)
      throw NexusFault(kNexusMissingCell, static_cast<long>(result_.names.size()) + 1);
    return std::move(result_);
  }

 private:
  // Says how far the text is read, every few megabytes.
  void Progress(size_t p) {
    if (!shape_.read || p < next_progress_) return;
    shape_.read(read_to_, p);
    read_to_ = p;
    next_progress_ = p + (size_t{2} << 20);
  }

  // True, with `q` moved past it, when the word at `q` is the unquoted name of row t exactly as
  // the first block gave it (a word runs to a blank or a comment, as ReadRowName reads it).
  bool SameUnquotedName(std::string_view line, size_t& q, int32_t t) const {
    const NexusToken& first = result_.names[static_cast<size_t>(t)];
    if (first.type != NexusToken::kWord || line[q] == '\'' || line[q] == '"') return false;
    size_t end = q;
    while (end < line.size() && !IsNexusBlank(line[end]) && line[end] != '[') ++end;
    if (line.substr(q, end - q) != first.text) return false;
    q = end;
    return true;
  }

  [[nodiscard]] int32_t Filled(int32_t t) const { return filled_[static_cast<size_t>(t)]; }

  // Copies the runs of plain cells and of matching symbols that open `text` (at most what row t
  // still takes, and matching symbols only where the first row has its cells) into the row;
  // the number of characters taken. The characters after them take the one-by-one rules.
  size_t CopyRun(int32_t t, const char* text, size_t n) {
    char* row = rows_[static_cast<size_t>(t)];
    int32_t& filled = filled_[static_cast<size_t>(t)];
    size_t taken = 0;
    for (;;) {
      const auto room = std::min(n - taken, static_cast<size_t>(shape_.nchar - filled));
      size_t run = plain_ ? CopyPlainCells(text + taken, room, row + filled) : 0;
      if (run == 0 && shape_.match != '\0' && t > 0 && Filled(0) > filled) {
        run = SameByteRun(text + taken, std::min(room, static_cast<size_t>(Filled(0) - filled)),
                          shape_.match);
        std::memcpy(row + filled, rows_[0] + filled, run);
      }
      if (run == 0) return taken;
      filled += static_cast<int32_t>(run);
      taken += run;
    }
  }

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

  // The next line from `p`, comments removed (a comment may run over several lines): the text
  // itself when the line holds no comment, else a copy in `copy`.
  std::string_view NextLine(size_t& p, std::string& copy) const {
    const size_t from = p;
    const size_t end = LineEndOrComment(text_, p);
    if (end == text_.size() || text_[end] == '\n') {
      p = end < text_.size() ? end + 1 : end;
      return text_.substr(from, end - from);
    }
    copy.clear();
    while (p < text_.size() && text_[p] != '\n') {
      if (text_[p] == '[') {
        p = SkipNexusComment(text_, p);
      } else {
        copy += text_[p++];
      }
    }
    if (p < text_.size()) ++p;
    return copy;
  }

  [[nodiscard]] bool AllCells(std::string_view line) const {
    return std::all_of(line.begin(), line.end(), [this](char c) {
      return codes_[static_cast<unsigned char>(c)] != kInvalid;
    });
  }

  void Store(int32_t t, uint8_t code, char c) {
    if (code == kInvalid) throw NexusFault(kNexusInvalidCell, t + 1, Upper(c));
    const int32_t site = Filled(t);
    char& cell = rows_[static_cast<size_t>(t)][site];
    if (code == kMatch) {
      if (t == 0 || Filled(0) <= site)
        throw NexusFault(kNexusMatchInFirst, static_cast<long>(site) + 1);
      cell = rows_[0][site];
    } else {
      cell = static_cast<char>(code);
    }
    ++filled_[static_cast<size_t>(t)];
  }

  std::string_view text_;
  const NexusMatrixShape& shape_;
  CellCodes codes_;
  bool plain_;
  NexusMatrix result_;
  std::vector<char*> rows_;      // where each row's cells go
  std::vector<int32_t> filled_;  // how many of them have come
  size_t next_progress_ = 0;
  size_t read_to_ = 0;
};

}  // namespace

NexusMatrix ReadNexusMatrix(std::string_view content, const NexusMatrixShape& shape) {
  MatrixReader reader(content, shape);
  return shape.interleaved ? reader.Interleaved() : reader.Sequential();
}

}  // namespace ovelt

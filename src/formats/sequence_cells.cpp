#include "formats/sequence_cells.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace ovelt {

size_t SameByteRun(const char* p, size_t n, char c) {
  size_t i = 0;
#if defined(__SSE2__)
  const __m128i want = _mm_set1_epi8(c);
  while (i + 16 <= n) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i));
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(v, want)));
    if (mask != 0xFFFFu) return i + static_cast<size_t>(__builtin_ctz(~mask));
    i += 16;
  }
#endif
  while (i < n && p[i] == c) ++i;
  return i;
}

size_t CopyPlainCells(const char* p, size_t n, char* out) {
  size_t i = 0;
#if defined(__SSE2__)
  const __m128i a = _mm_set1_epi8('A'), c = _mm_set1_epi8('C'), g = _mm_set1_epi8('G');
  const __m128i t = _mm_set1_epi8('T'), gap = _mm_set1_epi8('-'), missing = _mm_set1_epi8('?');
  while (i + 16 <= n) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i));
    const __m128i hit =
        _mm_or_si128(_mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(v, a), _mm_cmpeq_epi8(v, c)),
                                  _mm_or_si128(_mm_cmpeq_epi8(v, g), _mm_cmpeq_epi8(v, t))),
                     _mm_or_si128(_mm_cmpeq_epi8(v, gap), _mm_cmpeq_epi8(v, missing)));
    const unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(hit));
    if (mask != 0xFFFFu) {
      // Short runs (blocks of ten between blanks, as PHYLIP and MEGA write them) are the common
      // case: copied byte by byte rather than by a call.
      const size_t run = static_cast<size_t>(__builtin_ctz(~mask));
      for (size_t k = 0; k < run; ++k) out[i + k] = p[i + k];
      return i + run;
    }
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), v);
    i += 16;
  }
#endif
  for (; i < n; ++i) {
    switch (p[i]) {
      case 'A':
      case 'C':
      case 'G':
      case 'T':
      case '-':
      case '?':
        out[i] = p[i];
        break;
      default:
        return i;
    }
  }
  return i;
}

bool SequenceCells::Grow() {
  if (count_ >= limit_) return false;
  if (count_ < capacity()) return true;
  // Doubling keeps enlargements rare for a first sequence of unknown length.
  const size_t wanted = std::min(limit_, std::max<size_t>(cells_.size() * 2, 16384));
  cells_.resize(wanted);
  return true;
}

// The walk loop, kept in one place: it is the inner loop of every reader.
struct CellWalker {
  static WalkResult Walk(const CellTable& table, std::string_view text, SequenceCells& seq,
                         const MatchRule& match, WalkState& state) {
    const char* p = text.data();
    const size_t n = text.size();
    size_t i = 0;
    size_t count = seq.count_;
    char* out = seq.data();
    size_t room = std::min(seq.capacity(), seq.limit_);

    auto finish = [&](WalkEnd end, size_t pos, char ch) {
      seq.count_ = count;
      return WalkResult{end, pos, ch};
    };
    // Skips to just behind `close`, or to the end of the text with the comment left open.
    auto skip_to = [&](char close, bool& open_flag) {
      const void* hit = (i < n) ? std::memchr(p + i, close, n - i) : nullptr;
      if (hit == nullptr) {
        open_flag = true;
        i = n;
      } else {
        open_flag = false;
        i = static_cast<size_t>(static_cast<const char*>(hit) - p) + 1;
      }
    };

    if (state.in_quote) skip_to('"', state.in_quote);
    if (state.in_command) skip_to(';', state.in_command);

    const uint8_t* codes = table.code.data();
    while (i < n) {
      // Runs of cells stored as they are written, copied whole; a blank between two runs is
      // passed at once.
      if (table.plain_copies) {
        const size_t run = CopyPlainCells(p + i, std::min(n - i, room - count), out + count);
        count += run;
        i += run;
        if (i < n && codes[static_cast<unsigned char>(p[i])] == kCellSkip) {
          ++i;
          continue;
        }
      }
      // Runs of plain cells, eight at a time: the common case of every sequence line.
      while (i + 8 <= n && count + 8 <= room) {
        unsigned char eight[8];
        unsigned special = 0;
        for (int k = 0; k < 8; ++k) {
          eight[k] = codes[static_cast<unsigned char>(p[i + k])];
          special |= static_cast<unsigned>(eight[k] < kFirstStoredCell);
        }
        if (special != 0) break;
        std::memcpy(out + count, eight, 8);
        count += 8;
        i += 8;
      }
      if (i >= n) break;
      // One character by the full rules.
      const char c = p[i];
      const uint8_t code = table.of(c);
      if (code >= kFirstStoredCell || code == kCellMatch) {
        if (count == room) {
          seq.count_ = count;
          if (!seq.Grow()) return finish(WalkEnd::kFull, i, c);
          out = seq.data();
          room = std::min(seq.capacity(), seq.limit_);
        }
        if (code >= kFirstStoredCell) {
          out[count++] = static_cast<char>(code);
        } else if (match.mode == MatchRule::kCopy) {
          out[count] = match.first[count];
          ++count;
        } else if (match.mode == MatchRule::kDefer) {
          out[count++] = kDeferredMatchCell;
        } else {
          return finish(WalkEnd::kDotInFirst, i, c);
        }
        ++i;
        continue;
      }
      switch (code) {
        case kCellSkip:
          ++i;
          break;
        case kCellStop:
          return finish(WalkEnd::kStop, i, c);
        case kCellQuote:
          ++i;
          skip_to('"', state.in_quote);
          break;
        case kCellCommand:
          ++i;
          skip_to(';', state.in_command);
          break;
        default:
          return finish(WalkEnd::kRefused, i, UpperCase(c));
      }
    }
    return finish(WalkEnd::kLineEnd, n, 0);
  }
};

WalkResult WalkCells(const CellTable& table, std::string_view text, SequenceCells& cells,
                     const MatchRule& match, WalkState& state) {
  return CellWalker::Walk(table, text, cells, match, state);
}

size_t CountNonBlank(std::string_view text) {
  size_t n = 0;
  for (char c : text) n += (c != ' ' && c != '\t') ? 1 : 0;
  return n;
}

}  // namespace ovelt

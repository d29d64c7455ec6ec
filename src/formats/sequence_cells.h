#pragma once
// The cells of one sequence while it is read, and the walk of a piece of a sequence line through
// the cell rules into them.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "formats/cell_rules.h"

namespace ovelt {

// Stored for a matching symbol whose cell is filled in once the first sequence is complete.
inline constexpr char kDeferredMatchCell = '.';

class SequenceCells {
 public:
  static constexpr size_t kNoLimit = static_cast<size_t>(std::numeric_limits<int32_t>::max());

  // Empties the sequence; at most `limit` cells may come. The memory of earlier sequences is
  // kept, so a reader that reuses one SequenceCells allocates only once.
  void Start(size_t limit = kNoLimit) {
    count_ = 0;
    limit_ = limit;
    external_ = nullptr;
  }
  // Empties the sequence, whose `limit` cells are written straight into `dest` (their final
  // place in the matrix), so that they need not be copied there afterwards.
  void StartInto(char* dest, size_t limit) {
    count_ = 0;
    limit_ = limit;
    external_ = dest;
  }
  [[nodiscard]] size_t count() const { return count_; }
  [[nodiscard]] size_t limit() const { return limit_; }
  [[nodiscard]] bool full() const { return count_ == limit_; }
  [[nodiscard]] const char* data() const { return external_ ? external_ : cells_.data(); }
  [[nodiscard]] char* data() { return external_ ? external_ : cells_.data(); }
  // Cells that fit before the buffer must grow.
  [[nodiscard]] size_t capacity() const { return external_ ? limit_ : cells_.size(); }
  // True when the cells went straight to their place (StartInto).
  [[nodiscard]] bool in_place() const { return external_ != nullptr; }
  // Gives back the memory (after the cells were copied elsewhere).
  void Release() {
    std::vector<char>().swap(cells_);
    count_ = 0;
    external_ = nullptr;
  }

 private:
  friend struct CellWalker;
  // Room for at least one more cell below the limit; false when the limit is reached.
  bool Grow();

  std::vector<char> cells_;
  char* external_ = nullptr;
  size_t count_ = 0;
  size_t limit_ = kNoLimit;
};

// What a matching symbol does in the sequence being walked.
struct MatchRule {
  enum Mode { kRefuse, kCopy, kDefer } mode = kRefuse;
  const char* first = nullptr;  // kCopy: the cells of the first sequence
};

// Comment state of the MEGA rules, carried from one line to the next.
struct WalkState {
  bool in_quote = false;
  bool in_command = false;
  [[nodiscard]] bool open() const { return in_quote || in_command; }
};

enum class WalkEnd {
  kLineEnd,     // all of the text was walked
  kStop,        // a stop character at `pos`
  kRefused,     // `ch` is not a cell
  kFull,        // a cell came when the limit was reached
  kDotInFirst,  // a matching symbol in the first sequence
};

struct WalkResult {
  WalkEnd end = WalkEnd::kLineEnd;
  size_t pos = 0;
  char ch = 0;
};

// Walks `text` by the rules of `table`, appending the cells to `cells`.
[[nodiscard]] WalkResult WalkCells(const CellTable& table, std::string_view text,
                                   SequenceCells& cells, const MatchRule& match, WalkState& state);

// Copies the run of A, C, G, T, "-" and "?" that opens `text` (at most `n` bytes) to `out`, which
// holds at least `n`; its length.
size_t CopyPlainCells(const char* text, size_t n, char* out);

// The length of the run of `c` that opens `text` (at most `n` bytes).
[[nodiscard]] size_t SameByteRun(const char* text, size_t n, char c);

// Counts the characters of `text` other than blank and tab.
[[nodiscard]] size_t CountNonBlank(std::string_view text);

}  // namespace ovelt

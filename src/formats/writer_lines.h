#pragma once
// The line sink every writer writes through. A line's end goes out when the next text does (or
// at `Finish`), so that a block written between two pieces of kept text can end without one,
// as the block it replaces did. Kept text, with "\n" between its lines, goes out with "\n"
// turned into the chosen line end.

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

namespace ovelt {

// The line ends of the "Line Delimiter" choice: 1 CR + LF, 2 CR, 3 LF. Any other value is CR + LF.
[[nodiscard]] const char* LineDelimiterText(int16_t line_delimiter);

// Progress of a write, in percent (0..100), over the sequences written.
using WriteProgress = std::function<void(int)>;

class WriterLines {
 public:
  WriterLines(std::ostream& out, std::string delimiter, WriteProgress progress = {})
      : out_(out), delimiter_(std::move(delimiter)), progress_(std::move(progress)) {}

  void Line(std::string_view text) {
    FlushLineEnd();
    out_.write(text.data(), static_cast<std::streamsize>(text.size()));
    line_end_pending_ = true;
  }
  // Kept text as it stood, after the pending line end.
  void Kept(std::string_view text);
  // Kept text standing as lines of their own: it ends like a line written with `Line`.
  void KeptLine(std::string_view text) {
    Kept(text);
    line_end_pending_ = true;
  }
  // What was written so far ends its line: the next text starts a new one (once, however often
  // this is called).
  void EndLine() { line_end_pending_ = true; }
  // The last line written keeps no line end of its own.
  void DropLineEnd() { line_end_pending_ = false; }
  // Ends the last line.
  void Finish() { FlushLineEnd(); }

  // Sequence `done` of `total` has been written; the gauge follows and never goes down.
  void SequenceDone(int32_t done, int32_t total);

  [[nodiscard]] bool Good() const { return static_cast<bool>(out_); }
  [[nodiscard]] const std::string& Delimiter() const { return delimiter_; }

 private:
  void FlushLineEnd() {
    if (!line_end_pending_) return;
    out_.write(delimiter_.data(), static_cast<std::streamsize>(delimiter_.size()));
    line_end_pending_ = false;
  }

  std::ostream& out_;
  std::string delimiter_;
  WriteProgress progress_;
  int last_percent_ = -1;
  bool line_end_pending_ = false;
};

}  // namespace ovelt

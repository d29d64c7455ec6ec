#pragma once
// Splits a data file into lines ended by LF, CR + LF or CR alone, in any mix. Files are read
// straight from disk in large chunks and never held whole in memory; a line is handed out as a
// view into the chunk buffer, so no line is copied unless it straddles two chunks.
//
// Every line end is understood here, so no reader needs the file rewritten first: the old pass
// that copied a LF-only file to a temporary ".ric" file with CR + LF line ends is not needed, and
// no temporary file is ever created.
//
// The input is read once, from its start to its end, and never opened again, so standard input,
// pipes and process substitution read as plain files do. A reader that looks ahead marks where
// it is and comes back there: a file that can seek is asked to, any other input keeps the bytes
// read since the mark.

#include <cstdint>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/read_file.h"

namespace ovelt {

class LineReader {
 public:
  // Reads the bytes of an open file (not owned; it stays open while the reader is used).
  LineReader(std::FILE* file, int64_t file_size, ReadProgress progress = {});
  // Reads bytes held in memory (not copied; they must outlive the reader). `release`, when
  // given, is told now and then of a range [from, to) of bytes that are not needed for now (no
  // mark is held there), so that their owner may give the memory back (the bytes must still
  // read the same if they are read again).
  explicit LineReader(std::string_view bytes, ReadProgress progress = {},
                      std::function<void(size_t, size_t)> release = {});

  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  // The next line without its line end; false at the end of the data. The view stays valid
  // until the next call.
  bool Next(std::string_view& line);

  // The start of the next line, at most `max_bytes` of it, without taking it: a look at the
  // beginning of the data that stays bounded whatever the input holds. Valid until the next call.
  std::string_view Peek(size_t max_bytes);

  // Remembers the place of the next line, until Unmark.
  void Mark();
  // Back to the mark (the gauge does not go back); nothing without one.
  void Rewind();
  // Forgets the mark: bytes before the next line need not be kept any longer.
  void Unmark() { marked_ = false; }

  // All the bytes not yet handed out, as they stand, when they are held in memory, have "\n"
  // alone as line end and end with one: the whole text a reader may want, without a copy. They
  // count as read. Nothing otherwise (the caller gathers the lines instead).
  std::optional<std::string_view> RestAsText();
  // Tells the owner of bytes held in memory (see the constructor) that the bytes [from, to)
  // (from the start of the data) are not needed for now.
  void Release(size_t from, size_t to) {
    if (release_) release_(from, to);
  }

  // Bytes of the data not yet handed out as lines (an upper bound of what is left to read).
  [[nodiscard]] int64_t BytesLeft() const { return total_ - consumed_; }
  [[nodiscard]] int64_t TotalBytes() const { return total_; }

 private:
  bool Refill();  // makes room and reads more; false when nothing more could be read
  void ReportProgress();

  std::FILE* file_ = nullptr;
  bool seekable_ = false;       // a regular file, rewound by seeking rather than by keeping bytes
  int64_t start_offset_ = 0;    // the file's offset when the reader began
  std::vector<char> chunk_;     // file mode: buffer of read bytes
  const char* data_ = nullptr;  // current bytes: [data_ + pos_, data_ + end_)
  size_t pos_ = 0;
  size_t end_ = 0;
  bool at_eof_ = false;   // nothing more can be read into the buffer
  bool skip_lf_ = false;  // last line ended in CR at the end of a chunk
  // Where the next CR and the next LF lie, each searched a window at a time: every byte is
  // searched once for each, and never far ahead of the reading, so that a file of one kind of
  // line end costs no more than another and the bytes are still in the cache when walked.
  struct ByteSeeker {
    static constexpr size_t kNone = static_cast<size_t>(-1);
    char byte = '\n';
    size_t found = kNone;  // the first `byte` at or after `searched`'s start, when known
    size_t searched = 0;   // [.., searched) holds no `byte` other than `found`
    void Reset() {
      found = kNone;
      searched = 0;
    }
    // The first `byte` in [from, limit) of data[0, end), or `limit`.
    size_t Find(const char* data, size_t from, size_t limit, size_t end);
  };
  ByteSeeker cr_{'\r'};
  ByteSeeker lf_{'\n'};
  bool marks_valid_ = false;

  // The mark: where the next line began, and what was known of the line ends there.
  bool marked_ = false;
  size_t mark_pos_ = 0;  // in the buffer, for input that cannot seek
  int64_t mark_consumed_ = 0;
  bool mark_skip_lf_ = false;

  int64_t total_ = 0;
  int64_t consumed_ = 0;
  ReadProgress progress_;
  std::function<void(size_t, size_t)> release_;
  size_t released_ = 0;
  size_t next_release_ = 0;
  int last_percent_ = -1;
  int64_t next_report_at_ = 0;
};

}  // namespace ovelt

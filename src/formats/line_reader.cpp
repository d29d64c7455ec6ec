#include "formats/line_reader.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

namespace ovelt {
namespace {

constexpr size_t kChunkBytes = size_t{1} << 20;
// The bytes searched for a line end at a time.
constexpr size_t kSeekWindow = size_t{64} << 10;
// How far the reading moves on between two hand-backs of the bytes behind it.
constexpr size_t kReleaseStep = size_t{2} << 20;

size_t FindByte(const char* data, size_t from, size_t end, char byte) {
  if (from >= end) return end;
  const void* hit = std::memchr(data + from, byte, end - from);
  return hit == nullptr ? end : static_cast<size_t>(static_cast<const char*>(hit) - data);
}

}  // namespace

LineReader::LineReader(std::FILE* file, int64_t file_size, ReadProgress progress)
    : file_(file), chunk_(kChunkBytes), total_(file_size), progress_(std::move(progress)) {
  data_ = chunk_.data();
  struct stat info {};
  if (::fstat(::fileno(file), &info) == 0 && S_ISREG(info.st_mode)) {
    start_offset_ = ::ftello(file);
    seekable_ = start_offset_ >= 0;
  }
}

LineReader::LineReader(std::string_view bytes, ReadProgress progress,
                       std::function<void(size_t, size_t)> release)
    : data_(bytes.data()),
      end_(bytes.size()),
      at_eof_(true),
      total_(static_cast<int64_t>(bytes.size())),
      progress_(std::move(progress)),
      release_(std::move(release)),
      next_release_(kReleaseStep) {}

size_t LineReader::ByteSeeker::Find(const char* data, size_t from, size_t limit, size_t end) {
  if (found != kNone && found < from) found = kNone;
  searched = std::max(searched, from);
  while (found == kNone && searched < limit) {
    const size_t to = std::min(end, std::max(limit, searched + kSeekWindow));
    const size_t hit = FindByte(data, searched, to, byte);
    if (hit < to) {
      found = hit;
      searched = hit + 1;
    } else {
      searched = to;
    }
  }
  return found != kNone && found < limit ? found : limit;
}

bool LineReader::Refill() {
  if (file_ == nullptr || at_eof_) return false;
  // Keep the unfinished line (and, for input that cannot seek, everything from the mark on):
  // move it to the front, and make the buffer larger only when that alone fills it.
  const size_t keep_from = marked_ && !seekable_ ? std::min(mark_pos_, pos_) : pos_;
  const size_t kept = end_ - keep_from;
  if (kept > 0 && keep_from > 0) std::memmove(chunk_.data(), chunk_.data() + keep_from, kept);
  pos_ -= keep_from;
  if (marked_ && !seekable_) mark_pos_ -= keep_from;
  end_ = kept;
  if (end_ == chunk_.size()) chunk_.resize(chunk_.size() * 2);
  data_ = chunk_.data();
  const size_t wanted = chunk_.size() - end_;
  const size_t got = std::fread(chunk_.data() + end_, 1, wanted, file_);
  end_ += got;
  if (got < wanted) at_eof_ = true;
  marks_valid_ = false;
  return got > 0;
}

bool LineReader::Next(std::string_view& line) {
  // The line handed out last is done with: what lies before this one is never read again.
  if (release_ && !marked_ && pos_ >= next_release_) {
    release_(released_, pos_);
    released_ = pos_;
    next_release_ = pos_ + kReleaseStep;
  }
  for (;;) {
    if (skip_lf_) {
      if (pos_ == end_) Refill();
      if (pos_ < end_ && data_[pos_] == '\n') {
        ++pos_;
        ++consumed_;
      }
      skip_lf_ = false;
    }
    if (pos_ == end_ && !Refill()) {
      ReportProgress();
      return false;
    }
    if (!marks_valid_) {
      cr_.Reset();
      lf_.Reset();
      marks_valid_ = true;
    }
    // The first line end at or after pos_, looked for a window at a time (end_ when none).
    size_t line_end = end_;
    for (size_t limit = pos_; limit < end_;) {
      limit = std::min(end_, limit + kSeekWindow);
      const size_t lf = lf_.Find(data_, pos_, limit, end_);
      line_end = cr_.Find(data_, pos_, lf, end_);
      if (line_end < limit) break;
      line_end = end_;
    }
    if (line_end == end_) {
      if (!at_eof_) {
        Refill();
        continue;
      }
      // Last line of the data, without a line end.
      line = std::string_view(data_ + pos_, end_ - pos_);
      consumed_ += static_cast<int64_t>(end_ - pos_);
      pos_ = end_;
      ReportProgress();
      return true;
    }
    line = std::string_view(data_ + pos_, line_end - pos_);
    size_t next = line_end + 1;
    if (data_[line_end] == '\r') {
      if (next < end_) {
        if (data_[next] == '\n') ++next;
      } else {
        skip_lf_ = true;  // the LF of a CR + LF may open the next chunk
      }
    }
    consumed_ += static_cast<int64_t>(next - pos_);
    pos_ = next;
    ReportProgress();
    return true;
  }
}

std::optional<std::string_view> LineReader::RestAsText() {
  if (file_ != nullptr || skip_lf_ || pos_ >= end_ || data_[end_ - 1] != '\n') return std::nullopt;
  if (std::memchr(data_ + pos_, '\r', end_ - pos_) != nullptr) return std::nullopt;
  const std::string_view rest(data_ + pos_, end_ - pos_);
  consumed_ += static_cast<int64_t>(end_ - pos_);
  pos_ = end_;
  ReportProgress();
  return rest;
}

std::string_view LineReader::Peek(size_t max_bytes) {
  if (skip_lf_) {
    if (pos_ == end_) Refill();
    if (pos_ < end_ && data_[pos_] == '\n') {
      ++pos_;
      ++consumed_;
    }
    skip_lf_ = false;
  }
  for (;;) {
    const size_t held = end_ - pos_;
    const size_t line_end =
        std::min(FindByte(data_, pos_, end_, '\r'), FindByte(data_, pos_, end_, '\n'));
    if (line_end < end_ || held >= max_bytes || at_eof_ || file_ == nullptr || !Refill()) {
      marks_valid_ = false;
      return std::string_view(data_ + pos_, std::min({line_end - pos_, held, max_bytes}));
    }
  }
}

void LineReader::Mark() {
  marked_ = true;
  mark_pos_ = pos_;
  mark_consumed_ = consumed_;
  mark_skip_lf_ = skip_lf_;
}

void LineReader::Rewind() {
  if (!marked_) return;
  if (file_ != nullptr && seekable_) {
    ::fseeko(file_, start_offset_ + mark_consumed_, SEEK_SET);
    std::clearerr(file_);
    pos_ = end_ = 0;
    at_eof_ = false;
  } else {
    pos_ = mark_pos_;
  }
  skip_lf_ = mark_skip_lf_;
  marks_valid_ = false;
  consumed_ = mark_consumed_;
  next_report_at_ = 0;
}

void LineReader::ReportProgress() {
  if (!progress_ || total_ <= 0 || consumed_ < next_report_at_) return;
  const int percent = static_cast<int>(std::min<int64_t>(100, consumed_ * 100 / total_));
  if (percent > last_percent_) {
    last_percent_ = percent;
    progress_(percent);
  }
  next_report_at_ = ((std::max(percent, last_percent_) + 1) * total_ + 99) / 100;
}

}  // namespace ovelt

#include "formats/writer_lines.h"

namespace ovelt {

const char* LineDelimiterText(int16_t line_delimiter) {
  switch (line_delimiter) {
    case 2:
      return "\r";
    case 3:
      return "\n";
    default:
      return "\r\n";
  }
}

void WriterLines::Kept(std::string_view text) {
  FlushLineEnd();
  size_t from = 0;
  for (size_t nl = text.find('\n'); nl != std::string_view::npos; nl = text.find('\n', from)) {
    out_.write(text.data() + from, static_cast<std::streamsize>(nl - from));
    out_.write(delimiter_.data(), static_cast<std::streamsize>(delimiter_.size()));
    from = nl + 1;
  }
  out_.write(text.data() + from, static_cast<std::streamsize>(text.size() - from));
}

void WriterLines::SequenceDone(int32_t done, int32_t total) {
  if (!progress_ || total <= 0) return;
  const int percent = static_cast<int>(100LL * done / total);
  if (percent > last_percent_) {
    last_percent_ = percent;
    progress_(percent);
  }
}

}  // namespace ovelt

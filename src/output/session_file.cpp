#include "output/session_file.h"

namespace ovelt {

bool SessionFile::Open(const std::string& path) {
  Close();
  stream_.clear();
  stream_.open(path, std::ios::binary | std::ios::out | std::ios::trunc);
  return stream_.is_open() && stream_.good();
}

bool SessionFile::Append(const std::string& text) {
  if (!stream_.is_open()) return false;
  stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream_.flush();
  return stream_.good();
}

void SessionFile::Close() {
  if (stream_.is_open()) stream_.close();
  stream_.clear();
}

bool WriteWholeFile(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::out | std::ios::trunc);
  if (!out.is_open()) return false;
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.flush();
  const bool written = out.good();
  out.close();
  return written && !out.fail();
}

}  // namespace ovelt

#include "output/session_file.h"

namespace ovelt {

bool SessionFile::Open(const std::string& path) {
  Abandon();
  auto file = std::make_unique<WholeFileWriter>(path);
  if (!file->Open()) return false;
  file_ = std::move(file);
  return true;
}

bool SessionFile::Append(const std::string& text) {
  if (!file_) return false;
  file_->Stream().write(text.data(), static_cast<std::streamsize>(text.size()));
  return file_->Flush();
}

bool SessionFile::Close() {
  if (!file_) return true;
  const bool written = file_->Commit();
  file_.reset();
  return written;
}

void SessionFile::Abandon() { file_.reset(); }

}  // namespace ovelt

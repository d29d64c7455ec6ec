#include "files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <streambuf>
#include <system_error>
#include <vector>

namespace ovelt {

namespace {

bool WriteAll(int fd, const char* data, size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(fd, data, size);
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    data += written;
    size -= static_cast<size_t>(written);
  }
  return true;
}

std::string ParentOf(const std::string& path) {
  const std::filesystem::path parent = std::filesystem::path(path).parent_path();
  return parent.empty() ? std::string(".") : parent.string();
}

// The rename has reached the directory on the disk too; a failure here loses nothing.
void SyncDirectory(const std::string& directory) {
  const int fd = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  (void)::fsync(fd);
  ::close(fd);
}

// A link keeps being a link: the file it names is the one replaced.
std::string Destination(const std::string& target) {
  struct stat link {};
  if (::lstat(target.c_str(), &link) != 0 || !S_ISLNK(link.st_mode)) return target;
  std::error_code error;
  const std::filesystem::path resolved = std::filesystem::canonical(target, error);
  return error ? target : resolved.string();
}

}  // namespace

// The bytes on their way to the file descriptor, in blocks of 64 KiB.
class WholeFileWriter::Buffer : public std::streambuf {
 public:
  explicit Buffer(int fd) : fd_(fd), bytes_(size_t{1} << 16) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
  }

  bool Drain() {
    const size_t pending = static_cast<size_t>(pptr() - pbase());
    if (failed_) return false;
    if (pending > 0 && !WriteAll(fd_, pbase(), pending)) failed_ = true;
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    return !failed_;
  }

 protected:
  int_type overflow(int_type c) override {
    if (!Drain()) return traits_type::eof();
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    *pptr() = traits_type::to_char_type(c);
    pbump(1);
    return c;
  }

  std::streamsize xsputn(const char* s, std::streamsize n) override {
    if (n <= epptr() - pptr()) {
      traits_type::copy(pptr(), s, static_cast<size_t>(n));
      pbump(static_cast<int>(n));
      return n;
    }
    // Larger than the room left: the buffer goes out, then these bytes straight after it.
    if (!Drain()) return 0;
    if (!WriteAll(fd_, s, static_cast<size_t>(n))) {
      failed_ = true;
      return 0;
    }
    return n;
  }

  int sync() override { return Drain() ? 0 : -1; }

 private:
  int fd_;
  std::vector<char> bytes_;
  bool failed_ = false;
};

WholeFileWriter::WholeFileWriter(std::string target)
    : target_(std::move(target)), stream_(std::make_unique<std::ostream>(nullptr)) {}

WholeFileWriter::~WholeFileWriter() {
  Discard();
}

bool WholeFileWriter::Open() {
  Discard();
  if (target_.empty()) return false;
  struct stat existing {};
  const bool exists = ::stat(target_.c_str(), &existing) == 0;
  if (exists && S_ISDIR(existing.st_mode)) return false;
  if (exists && !S_ISREG(existing.st_mode)) {
    fd_ = ::open(target_.c_str(), O_WRONLY | O_CLOEXEC);
  } else {
    // A file the user made read-only stays so: it is not replaced behind their back.
    if (exists && ::access(target_.c_str(), W_OK) != 0) return false;
    destination_ = Destination(target_);
    const std::string directory = ParentOf(destination_);
    const std::string name = std::filesystem::path(destination_).filename().string();
    for (int attempt = 0; attempt < 100 && fd_ < 0; ++attempt) {
      const std::string candidate = directory + "/." + name + ".ovelt-" +
                                    std::to_string(::getpid()) + "-" + std::to_string(attempt);
      fd_ = ::open(candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (fd_ >= 0) {
        temporary_ = candidate;
      } else if (errno != EEXIST) {
        break;
      }
    }
    // A replaced file keeps its permissions.
    if (fd_ >= 0 && exists) (void)::fchmod(fd_, existing.st_mode & 07777);
  }
  if (fd_ < 0) return false;
  buffer_ = std::make_unique<Buffer>(fd_);
  stream_->rdbuf(buffer_.get());
  stream_->clear();
  return true;
}

std::ostream& WholeFileWriter::Stream() {
  return *stream_;
}

bool WholeFileWriter::IsOpen() const {
  return fd_ >= 0;
}

bool WholeFileWriter::Flush() {
  if (fd_ < 0) return false;
  if (!stream_->flush() || !buffer_->Drain()) {
    stream_->setstate(std::ios::badbit);
    return false;
  }
  return true;
}

bool WholeFileWriter::Commit(Durability durability) {
  if (!Flush()) {
    Discard();
    return false;
  }
  const bool direct = temporary_.empty();
  const bool synced = direct || durability == Durability::kRenamedOnly || ::fsync(fd_) == 0;
  const bool closed = ::close(fd_) == 0;
  fd_ = -1;
  stream_->rdbuf(nullptr);
  if (!synced || !closed) {
    Discard();
    return false;
  }
  if (direct) return true;
  if (::rename(temporary_.c_str(), destination_.c_str()) != 0) {
    Discard();
    return false;
  }
  temporary_.clear();
  if (durability == Durability::kSynced) SyncDirectory(ParentOf(destination_));
  return true;
}

void WholeFileWriter::Discard() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  stream_->rdbuf(nullptr);
  buffer_.reset();
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
  temporary_.clear();
}

bool WriteWholeFile(const std::string& path, std::string_view bytes, Durability durability) {
  WholeFileWriter file(path);
  if (!file.Open()) return false;
  file.Stream().write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.Commit(durability);
}

}  // namespace ovelt

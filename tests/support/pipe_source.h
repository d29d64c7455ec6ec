#pragma once
// Bytes served through a pipe, as a shell's process substitution ("<(cat file)") or a pipeline
// serves them: the reader sees a file that cannot seek. A child process writes the bytes, so a
// pipe of any size fills as the reader reads.

#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace ovelt::testing {

class PipeSource {
 public:
  explicit PipeSource(const std::string& bytes) {
    int ends[2];
    if (::pipe(ends) != 0) return;
    writer_ = ::fork();
    if (writer_ == 0) {
      ::close(ends[0]);
      const char* p = bytes.data();
      size_t left = bytes.size();
      while (left > 0) {
        const ssize_t n = ::write(ends[1], p, left);
        if (n <= 0) ::_exit(1);
        p += n;
        left -= static_cast<size_t>(n);
      }
      ::_exit(0);
    }
    ::close(ends[1]);
    fd_ = ends[0];
  }
  ~PipeSource() {
    if (fd_ >= 0) ::close(fd_);
    int status = 0;
    if (writer_ > 0) ::waitpid(writer_, &status, 0);
  }
  PipeSource(const PipeSource&) = delete;
  PipeSource& operator=(const PipeSource&) = delete;

  // The read end, and the name a process substitution would pass ("/dev/fd/N").
  [[nodiscard]] int Fd() const { return fd_; }
  [[nodiscard]] std::string Path() const { return "/dev/fd/" + std::to_string(fd_); }

 private:
  int fd_ = -1;
  pid_t writer_ = -1;
};

}  // namespace ovelt::testing

#pragma once
// The bytes of a regular file mapped into memory, read where they lie rather than copied into a
// buffer of our own. Pages already read can be handed back (`Release`), so that a reader that
// walks the file once from start to end keeps only a few megabytes of it resident however large
// the file is.

#include <cstddef>
#include <string_view>

namespace ovelt {

class MappedFile {
 public:
  // Maps the file open as `fd` (not owned), of `size` bytes. `valid()` is false when the system
  // would not map it (the caller then reads the file as a stream).
  MappedFile(int fd, size_t size);
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  [[nodiscard]] bool valid() const { return data_ != nullptr || size_ == 0; }
  [[nodiscard]] std::string_view bytes() const { return {data_, data_ ? size_ : 0}; }

  // Hands back the whole pages within [from, to): they are not needed for now. Reading them
  // again later still sees the file's bytes (they come back from the page cache).
  void Release(size_t from, size_t to);

 private:
  const char* data_ = nullptr;
  size_t size_ = 0;
};

}  // namespace ovelt

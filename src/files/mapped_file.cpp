#include "files/mapped_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

namespace ovelt {
namespace {

size_t PageSize() {
  static const size_t page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
  return page;
}

}  // namespace

MappedFile::MappedFile(int fd, size_t size) : size_(size) {
  if (size == 0) return;
  void* map = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
  if (map == MAP_FAILED) return;
  ::madvise(map, size, MADV_SEQUENTIAL);
  data_ = static_cast<const char*>(map);
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) ::munmap(const_cast<char*>(data_), size_);
}

void MappedFile::Release(size_t from, size_t to) {
  if (data_ == nullptr) return;
  const size_t page = PageSize();
  const size_t first = (from + page - 1) / page * page;
  const size_t end = std::min(to, size_) / page * page;
  if (end <= first) return;
  ::madvise(const_cast<char*>(data_) + first, end - first, MADV_DONTNEED);
}

}  // namespace ovelt

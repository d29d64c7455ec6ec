#include "files/mapped_file.h"

#include <sys/mman.h>
#include <unistd.h>

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

void MappedFile::Release(size_t offset) {
  if (data_ == nullptr) return;
  const size_t end = offset / PageSize() * PageSize();
  if (end <= released_) return;
  ::madvise(const_cast<char*>(data_) + released_, end - released_, MADV_DONTNEED);
  released_ = end;
}

}  // namespace ovelt

#pragma once
// A file written whole or not at all. The bytes go to a new temporary file beside the target
// (in the same directory, so that the final rename never crosses file systems); `Commit`
// flushes them, syncs them to the disk and renames the temporary file over the target. Until
// then the target keeps its old bytes, and a reader of it sees the old file or the new one,
// never a part. When anything fails, or the writer goes away without `Commit`, the temporary
// file is removed and the target stays as it was.
//
// A target that is a symbolic link keeps the link: the file it points to is replaced. A target
// that exists and is no regular file (a terminal, a pipe, /dev/null) cannot be replaced by a
// rename; it is written directly.

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace ovelt {

// How far a committed file is taken before Commit returns. Both replace the file whole, by one
// rename; kSynced also waits until the bytes and the rename are on the disk (data files, and
// anything a crash must not take back), kRenamedOnly leaves that to the system (a list of
// recent files, rewritten at every open: a script opening thousands of files should not wait
// on the disk each time).
enum class Durability { kSynced, kRenamedOnly };

class WholeFileWriter {
 public:
  explicit WholeFileWriter(std::string target);
  ~WholeFileWriter();
  WholeFileWriter(const WholeFileWriter&) = delete;
  WholeFileWriter& operator=(const WholeFileWriter&) = delete;

  // Creates the temporary file; false when the target's directory takes no new file.
  [[nodiscard]] bool Open();
  // Where the bytes go (after a successful Open). A failed write sets the stream's badbit.
  [[nodiscard]] std::ostream& Stream();
  // Hands the buffered bytes to the system (without waiting for the disk); false on failure.
  [[nodiscard]] bool Flush();
  // Flushes, syncs (unless kRenamedOnly) and renames over the target; false (target untouched)
  // on any failure.
  [[nodiscard]] bool Commit(Durability durability = Durability::kSynced);
  // Removes the temporary file; the target stays as it was.
  void Discard();

  [[nodiscard]] bool IsOpen() const;
  [[nodiscard]] const std::string& Target() const { return target_; }

 private:
  class Buffer;
  std::string target_;       // as given
  std::string destination_;  // the file the rename replaces (a link's target)
  std::string temporary_;    // empty when written directly
  int fd_ = -1;
  std::unique_ptr<Buffer> buffer_;
  std::unique_ptr<std::ostream> stream_;
};

// Writes `bytes` as the whole of `path`; false (the old file untouched) on any failure.
[[nodiscard]] bool WriteWholeFile(const std::string& path, std::string_view bytes,
                                  Durability durability = Durability::kSynced);

}  // namespace ovelt

#include "files/whole_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temp_dir.h"
#include "support/write_faults.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunWithWriteLimit;
using testing::TempDir;
using testing::WriteFault;

std::vector<std::string> NamesIn(const TempDir& dir) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path()))
    names.push_back(entry.path().filename().string());
  return names;
}

// Bytes that tell one place of a file from another.
std::string Numbered(size_t size) {
  std::string bytes;
  for (size_t i = 0; bytes.size() < size; ++i) bytes += std::to_string(i) + "\n";
  bytes.resize(size);
  return bytes;
}

TEST(WholeFile, WritesANewFileAndLeavesNothingElseBehind) {
  TempDir dir;
  const std::string path = dir.File("new.txt");
  ASSERT_TRUE(WriteWholeFile(path, "one\r\ntwo\r\n"));
  EXPECT_EQ(ReadBytes(path), "one\r\ntwo\r\n");
  EXPECT_EQ(NamesIn(dir), std::vector<std::string>{"new.txt"});
}

TEST(WholeFile, ARenameWithoutSyncStillReplacesTheFileWhole) {
  TempDir dir;
  const std::string path = dir.File("list.ini");
  ASSERT_TRUE(WriteWholeFile(path, "old\r\n"));
  ASSERT_TRUE(WriteWholeFile(path, "new\r\n", Durability::kRenamedOnly));
  EXPECT_EQ(ReadBytes(path), "new\r\n");
  EXPECT_EQ(NamesIn(dir), std::vector<std::string>{"list.ini"});
}

TEST(WholeFile, ReplacesAnOldFileAndKeepsItsPermissions) {
  TempDir dir;
  const std::string path = dir.Write("old.txt", "old bytes that are longer than the new ones");
  ::chmod(path.c_str(), 0640);
  ASSERT_TRUE(WriteWholeFile(path, "new"));
  EXPECT_EQ(ReadBytes(path), "new");
  struct stat info {};
  ASSERT_EQ(::stat(path.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0640u);
  EXPECT_EQ(NamesIn(dir), std::vector<std::string>{"old.txt"});
}

TEST(WholeFile, NothingIsWrittenUntilCommitAndADiscardLeavesTheOldFile) {
  TempDir dir;
  const std::string path = dir.Write("kept.txt", "old");
  {
    WholeFileWriter file(path);
    ASSERT_TRUE(file.Open());
    file.Stream() << Numbered(200000);
    ASSERT_TRUE(file.Flush());
    EXPECT_EQ(ReadBytes(path), "old");
  }  // never committed
  EXPECT_EQ(ReadBytes(path), "old");
  EXPECT_EQ(NamesIn(dir), std::vector<std::string>{"kept.txt"});
}

TEST(WholeFile, ALinkStaysALinkAndItsFileIsReplaced) {
  TempDir dir;
  const std::string real = dir.Write("real.txt", "old");
  const std::string link = dir.File("link.txt");
  std::filesystem::create_symlink(real, link);
  ASSERT_TRUE(WriteWholeFile(link, "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(ReadBytes(real), "new");
}

TEST(WholeFile, AReadOnlyFileAMissingFolderAndAFolderAreRefused) {
  TempDir dir;
  const std::string locked = dir.Write("locked.txt", "old");
  ::chmod(locked.c_str(), 0444);
  if (::access(locked.c_str(), W_OK) != 0) {  // root may write anything
    EXPECT_FALSE(WriteWholeFile(locked, "new"));
    EXPECT_EQ(ReadBytes(locked), "old");
  }
  EXPECT_FALSE(WriteWholeFile(dir.File("missing/x.txt"), "new"));
  EXPECT_FALSE(WriteWholeFile(dir.Path().string(), "new"));
  EXPECT_FALSE(WriteWholeFile("", "new"));
}

TEST(WholeFile, ADeviceIsWrittenDirectlyAndItsFailureIsSeen) {
  EXPECT_TRUE(WriteWholeFile("/dev/null", "bytes"));
  if (std::filesystem::exists("/dev/full")) {
    EXPECT_FALSE(WriteWholeFile("/dev/full", "bytes"));
  }
}

TEST(WholeFile, AFullDiskLeavesTheOldFileByteForByte) {
  TempDir dir;
  const std::string old_bytes = Numbered(5000);
  const std::string path = dir.Write("data.txt", old_bytes);
  for (uint64_t limit : {0ull, 1ull, 4096ull, 65536ull, 65537ull, 299999ull}) {
    const auto end = RunWithWriteLimit(limit, WriteFault::kDiskFull, [&] {
      return WriteWholeFile(path, Numbered(300000)) ? 0 : 3;
    });
    EXPECT_TRUE(end.exited && end.code == 3) << "limit " << limit;
    EXPECT_EQ(ReadBytes(path), old_bytes) << "limit " << limit;
    EXPECT_EQ(NamesIn(dir), std::vector<std::string>{"data.txt"}) << "limit " << limit;
  }
}

TEST(WholeFile, AProcessKilledMidWriteLeavesTheOldFileByteForByte) {
  TempDir dir;
  const std::string old_bytes = Numbered(5000);
  const std::string path = dir.Write("data.txt", old_bytes);
  for (uint64_t limit : {0ull, 100ull, 65536ull, 131073ull, 299999ull}) {
    const auto end = RunWithWriteLimit(
        limit, WriteFault::kKilled, [&] { return WriteWholeFile(path, Numbered(300000)) ? 0 : 3; });
    EXPECT_TRUE(end.killed) << "limit " << limit;
    EXPECT_EQ(ReadBytes(path), old_bytes) << "limit " << limit;
  }
  // With room for every byte the same write goes through.
  const auto end = RunWithWriteLimit(
      300000, WriteFault::kKilled, [&] { return WriteWholeFile(path, Numbered(300000)) ? 0 : 3; });
  EXPECT_TRUE(end.exited && end.code == 0);
  EXPECT_EQ(ReadBytes(path), Numbered(300000));
}

}  // namespace
}  // namespace ovelt

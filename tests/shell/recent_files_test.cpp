#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "shell/recent_files.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(RecentFiles, NewPathGoesFirstAndTheFourthFallsOff) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  RecentFiles recent(p);
  for (const char* path : {"/a.fas", "/b.fas", "/c.fas", "/d.fas", "/e.fas"})
    recent.fActualizaCFA(path, 0);
  EXPECT_EQ(recent.Entry(1), "/e.fas");
  EXPECT_EQ(recent.Entry(2), "/d.fas");
  EXPECT_EQ(recent.Entry(3), "/c.fas");
  EXPECT_EQ(recent.Entry(4), "/b.fas");
  EXPECT_EQ(recent.MenuText(1), "&1 /e.fas");
  EXPECT_EQ(ReadAll(dir.File("OVELTCFA.INI")), "/e.fas\r\n/d.fas\r\n/c.fas\r\n/b.fas\r\n");
  EXPECT_TRUE(p.Boxes.empty());
}

TEST(RecentFiles, KnownPathMovesUpAndOthersShiftDown) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  RecentFiles recent(p);
  for (const char* path : {"/a", "/b", "/c", "/d"}) recent.fActualizaCFA(path, 0);
  // Entries: d c b a. Opening " /b " again (compared trimmed): b d c a.
  recent.fActualizaCFA(" /b ", 0);
  EXPECT_EQ(recent.Entry(1), "/b");
  EXPECT_EQ(recent.Entry(2), "/d");
  EXPECT_EQ(recent.Entry(3), "/c");
  EXPECT_EQ(recent.Entry(4), "/a");
  // Found at the top: nothing moves.
  recent.fActualizaCFA("/b", 0);
  EXPECT_EQ(recent.Entry(1), "/b");
  EXPECT_EQ(recent.Entry(2), "/d");
  // By index: entry 4 moves to the top.
  recent.fActualizaCFA("", 4);
  EXPECT_EQ(recent.Entry(1), "/a");
  EXPECT_EQ(recent.Entry(2), "/b");
  EXPECT_EQ(recent.Entry(3), "/d");
  EXPECT_EQ(recent.Entry(4), "/c");
}

TEST(RecentFiles, TheListAsItWasReadIsNotWrittenAgain) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  {
    RecentFiles recent(p);
    for (const char* path : {"/a", "/b"}) recent.fActualizaCFA(path, 0);
  }
  const std::string file = dir.File("OVELTCFA.INI");
  const auto inode = [&] {
    struct stat info {};
    ::stat(file.c_str(), &info);
    return info.st_ino;
  };
  const auto written = inode();
  // A new run reads the list and opens its first file again: the file stays as it is (a rewrite
  // would rename a new file over it).
  RecentFiles again(p);
  again.fConsultaCFA();
  again.fActualizaCFA("/b", 0);
  EXPECT_EQ(inode(), written);
  EXPECT_EQ(again.Entry(1), "/b");
  // Another file changes the list, and the file is replaced.
  again.fActualizaCFA("/c", 0);
  EXPECT_NE(inode(), written);
  EXPECT_EQ(ReadAll(file), "/c\r\n/b\r\n/a\r\n");
}

TEST(RecentFiles, ConsultaReadsAtMostFourLines) {
  TempDir dir;
  dir.Write("OVELTCFA.INI", "/1\r\n/2\n/3\r\n/4\r\n/5\r\n");
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  RecentFiles recent(p);
  recent.fConsultaCFA();
  EXPECT_EQ(recent.Count(), 4);
  EXPECT_EQ(recent.Entry(2), "/2");
  EXPECT_EQ(recent.Entry(4), "/4");
}

TEST(RecentFiles, UnwritableProgramDirectoryFallsBackWithoutWarning) {
  TempDir dir;
  // A regular file where the program's directory should be: nothing can be written there,
  // whatever the user's privileges.
  const std::string blocked = dir.Write("not_a_directory", "x");
  ScriptedPlatform p;
  p.ProgramDir = blocked;
  p.ConfigDir = (dir.Path() / "config").string();
  RecentFiles recent(p);
  recent.fActualizaCFA("/x.fas", 0);
  EXPECT_TRUE(p.Boxes.empty());
  EXPECT_EQ(ReadAll((dir.Path() / "config" / "OVELTCFA.INI").string()), "/x.fas\r\n");
  // And the list is found there at the next start.
  RecentFiles again(p);
  again.fConsultaCFA();
  EXPECT_EQ(again.Entry(1), "/x.fas");
}

TEST(RecentFiles, NeitherDirectoryWritableOnlyWarnsAndWorkGoesOn) {
  TempDir dir;
  const std::string blocked = dir.Write("blocked", "x");
  ScriptedPlatform p;
  p.ProgramDir = blocked;
  p.ConfigDir = blocked + "/sub";
  RecentFiles recent(p);
  recent.fActualizaCFA("/x.fas", 0);
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(p.Boxes[0].Text,
            "Ovelt can not save some configuration settings likely because you do not have "
            "permissions to write in the Application File Directory. \nYou should contact with "
            "your system administrator. \nYou can use Ovelt as usual.");
  EXPECT_EQ(recent.Entry(1), "/x.fas");  // the list in memory is still kept
}

}  // namespace
}  // namespace ovelt

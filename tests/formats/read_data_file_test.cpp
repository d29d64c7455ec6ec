// Opening files from disk: the dispatch to the readers, the messages of a file that cannot be
// opened, the MEGA dialog, the gauge and the lack of memory.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <new>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "formats/read_file.h"
#include "support/scripted_platform.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

namespace fs = std::filesystem;
using testing::Row;
using testing::ScriptedPlatform;

class ReadDataFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("ovelt_read_" + std::to_string(std::random_device{}()));
    fs::create_directories(dir_ / "program");
    platform_.ProgramDir = (dir_ / "program").string();
  }
  void TearDown() override { fs::remove_all(dir_); }

  std::string Write(const std::string& name, const std::string& bytes) {
    const fs::path path = dir_ / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path.string();
  }

  fs::path dir_;
  ScriptedPlatform platform_;
};

std::set<std::string> RicFilesIn(const fs::path& dir) {
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(dir)) {
    if (entry.path().extension() == ".ric") found.insert(entry.path().string());
  }
  return found;
}

TEST_F(ReadDataFileTest, LfFileReadsAndLeavesNoTemporaryFile) {
  const std::set<std::string> before = RicFilesIn(fs::current_path());
  const std::string path = Write("unix.fas", ">a\nACGT\n>b\nAC-T\n");
  const LoadedFile f = ReadDataFile(path, platform_);
  EXPECT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 2), "AC-T");
  EXPECT_TRUE(RicFilesIn(dir_).empty());
  EXPECT_TRUE(RicFilesIn(dir_ / "program").empty());
  EXPECT_EQ(RicFilesIn(fs::current_path()), before);
  // Nothing but the data file was ever created beside it.
  EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 2);
}

TEST_F(ReadDataFileTest, SameFileWithEachLineEndGivesEqualMatrices) {
  const std::string lf = "#mega\n!Title t;\n#a\nACGT\nA\n#b\n.G..\nT\n";
  std::string crlf, cr;
  for (char c : lf) {
    crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    cr += c == '\n' ? '\r' : c;
  }
  const LoadedFile a = ReadDataFile(Write("lf.meg", lf), platform_);
  const LoadedFile b = ReadDataFile(Write("crlf.meg", crlf), platform_);
  const LoadedFile c = ReadDataFile(Write("cr.meg", cr), platform_);
  EXPECT_EQ(Row(a, 1), "ACGTA");
  EXPECT_EQ(Row(a, 2), "AGGTT");
  for (const LoadedFile* other : {&b, &c}) {
    EXPECT_EQ(Row(*other, 1), Row(a, 1));
    EXPECT_EQ(Row(*other, 2), Row(a, 2));
    EXPECT_EQ(other->Names, a.Names);
  }
}

TEST_F(ReadDataFileTest, MissingFile) {
  const std::string path = (dir_ / "none.fas").string();
  try {
    (void)ReadDataFile(path, platform_);
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_EQ(std::string(error.what()),
              "Input data file:  " + path + " File not found or already open");
  }
  try {
    (void)ReadDataFile(dir_.string(), platform_);
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_EQ(std::string(error.what()),
              "Input data file:  " + dir_.string() + " File not found or already open");
  }
}

TEST_F(ReadDataFileTest, KindComesFromTheContentNotTheExtension) {
  const LoadedFile f = ReadDataFile(Write("data.nex", "2 3\na         ACG\nb         ACT\n"),
                                    platform_);
  EXPECT_EQ(f.FileKind, kPhylip);
  const std::string bad = Write("data.fas", "ACGT\n");
  try {
    (void)ReadDataFile(bad, platform_);
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_EQ(std::string(error.what()), "Input data file: " + bad + "\n\nBad or unknown file format");
  }
  const std::string empty = Write("empty.fas", "");
  EXPECT_THROW((void)ReadDataFile(empty, platform_), ReadError);
}

TEST_F(ReadDataFileTest, MegaDialogIsAskedWithTheFileName) {
  platform_.MegaAnswers.push_back(MegaOptions{1, '.', '-', '?'});
  const LoadedFile f = ReadDataFile(Write("x.meg", "#MEGA\n#a AC\n#b .G\n"), platform_);
  EXPECT_EQ(platform_.MegaQuestions, std::vector<std::string>{"x.meg"});
  EXPECT_EQ(Row(f, 2), "AG");
  EXPECT_EQ(f.Interleaved, 1);
}

TEST_F(ReadDataFileTest, CancelledMegaDialogEndsSilently) {
  platform_.MegaAnswers.push_back(std::nullopt);
  EXPECT_THROW((void)ReadDataFile(Write("x.meg", "#MEGA\n#a AC\n"), platform_), ReadCancelled);
  EXPECT_TRUE(platform_.Boxes.empty());
}

TEST_F(ReadDataFileTest, NexusFileIsReadByTheNexusReader) {
  // A block without its DIMENSIONS: the NTAX command is missing.
  try {
    (void)ReadDataFile(Write("x.txt", "#NEXUS\nbegin data;\n"), platform_);
    FAIL() << "read";
  } catch (const ReadError& error) {
    EXPECT_NE(std::string(error.what()).find("Error Reading the NTAX command"), std::string::npos);
  }
}

TEST_F(ReadDataFileTest, GaugeEndsAtOneHundred) {
  std::string text;
  for (int s = 0; s < 50; ++s) text += ">s\n" + std::string(200, 'A') + "\n";
  std::vector<int> seen;
  (void)ReadDataFile(Write("g.fas", text), platform_, [&](int p) { seen.push_back(p); });
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), 100);
  for (size_t i = 1; i < seen.size(); ++i) EXPECT_GT(seen[i], seen[i - 1]);
}

TEST_F(ReadDataFileTest, LackOfMemoryHasItsOwnMessage) {
  // The gauge callback runs inside the read, so it can stand in for an allocation that fails.
  const auto fail = [](int) { throw std::bad_alloc(); };
  try {
    (void)ReadDataFile(Write("m.fas", ">a\nACGT\n"), platform_, fail);
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_STREQ(error.what(),
                 "        Out of memory !!!\nTry to reduce the number of programs running, or "
                 "try to increase the RAM or virtual memory.");
  }
}

}  // namespace
}  // namespace ovelt

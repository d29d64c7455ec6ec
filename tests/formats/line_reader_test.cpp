// Splitting into lines: LF, CR + LF and CR line ends, from memory and from a file read in chunks.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "formats/line_reader.h"
#include "support/pipe_source.h"

namespace ovelt {
namespace {

std::vector<std::string> LinesOf(LineReader& in) {
  std::vector<std::string> lines;
  std::string_view line;
  while (in.Next(line)) lines.emplace_back(line);
  return lines;
}

std::vector<std::string> MemoryLines(const std::string& bytes) {
  LineReader in(bytes);
  return LinesOf(in);
}

// A plain character-by-character splitter to compare with.
std::vector<std::string> PlainSplit(const std::string& bytes) {
  std::vector<std::string> lines;
  std::string current;
  bool open = false;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const char c = bytes[i];
    if (c == '\r' || c == '\n') {
      lines.push_back(current);
      current.clear();
      open = false;
      if (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
    } else {
      current += c;
      open = true;
    }
  }
  if (open) lines.push_back(current);
  return lines;
}

class TempFile {
 public:
  explicit TempFile(const std::string& bytes) {
    path_ = std::filesystem::temp_directory_path() /
            ("ovelt_lines_" + std::to_string(std::random_device{}()) + ".txt");
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  ~TempFile() { std::filesystem::remove(path_); }
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  std::vector<std::string> Lines() const {
    std::FILE* file = std::fopen(path_.c_str(), "rb");
    LineReader in(file, static_cast<int64_t>(std::filesystem::file_size(path_)));
    std::vector<std::string> lines = LinesOf(in);
    std::fclose(file);
    return lines;
  }

 private:
  std::filesystem::path path_;
};

using Lines = std::vector<std::string>;

TEST(LineReader, AllKindsOfLineEnds) {
  EXPECT_EQ(MemoryLines("a\nb\n"), (Lines{"a", "b"}));
  EXPECT_EQ(MemoryLines("a\r\nb\r\n"), (Lines{"a", "b"}));
  EXPECT_EQ(MemoryLines("a\rb\r"), (Lines{"a", "b"}));
  EXPECT_EQ(MemoryLines("a\rb\nc\r\nd"), (Lines{"a", "b", "c", "d"}));
  EXPECT_EQ(MemoryLines("a\n\r\nb\r\r"), (Lines{"a", "", "b", ""}));
  EXPECT_EQ(MemoryLines("\n"), (Lines{""}));
  EXPECT_EQ(MemoryLines(""), Lines{});
  EXPECT_EQ(MemoryLines("last"), (Lines{"last"}));
}

TEST(LineReader, CrLfSplitAcrossChunks) {
  const size_t chunk = size_t{1} << 20;
  const std::string bytes = std::string(chunk - 1, 'A') + "\r\nsecond\r\nthird";
  const Lines lines = TempFile(bytes).Lines();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].size(), chunk - 1);
  EXPECT_EQ(lines[1], "second");
  EXPECT_EQ(lines[2], "third");
}

TEST(LineReader, LineLongerThanAChunk) {
  const std::string long_line(3 * (size_t{1} << 20) + 17, 'C');
  const Lines lines = TempFile("x\n" + long_line + "\ny").Lines();
  EXPECT_EQ(lines, (Lines{"x", long_line, "y"}));
}

TEST(LineReader, FileInChunksAgreesWithAPlainSplit) {
  std::mt19937 random(12345);
  std::string bytes;
  const char* ends[] = {"\n", "\r\n", "\r"};
  while (bytes.size() < 3 * (size_t{1} << 20)) {
    bytes += std::string(random() % 200, static_cast<char>('a' + random() % 26));
    bytes += ends[random() % 3];
  }
  const Lines expected = PlainSplit(bytes);
  EXPECT_EQ(TempFile(bytes).Lines(), expected);
  EXPECT_EQ(MemoryLines(bytes), expected);
}

TEST(LineReader, RewindComesBackToTheMark) {
  const std::string bytes = "one\rtwo\r\nthree";
  LineReader in(bytes);
  std::string_view line;
  ASSERT_TRUE(in.Next(line));
  in.Mark();
  ASSERT_TRUE(in.Next(line));
  ASSERT_TRUE(in.Next(line));
  in.Rewind();
  EXPECT_EQ(LinesOf(in), (Lines{"two", "three"}));
  in.Rewind();  // the mark stays until Unmark
  EXPECT_EQ(LinesOf(in), (Lines{"two", "three"}));
}

// A pipe cannot seek: the bytes read after the mark are kept for the rewind, across chunks.
TEST(LineReader, APipeIsReadOnceAndRewoundFromWhatWasKept) {
  std::string bytes = "header\r";
  for (int i = 0; i < 250000; ++i) bytes += "line " + std::to_string(i) + (i % 2 ? "\r\n" : "\n");
  ASSERT_GT(bytes.size(), size_t{2} << 20);  // more than one chunk of the reader
  testing::PipeSource source(bytes);
  std::FILE* pipe = ::fdopen(::dup(source.Fd()), "rb");
  LineReader in(pipe, 0);
  EXPECT_EQ(in.Peek(3), "hea");
  std::string_view line;
  ASSERT_TRUE(in.Next(line));
  EXPECT_EQ(line, "header");
  in.Mark();
  const Lines rest = LinesOf(in);
  in.Rewind();
  in.Unmark();
  EXPECT_EQ(LinesOf(in), rest);
  Lines expected = PlainSplit(bytes);
  expected.erase(expected.begin());
  EXPECT_EQ(rest, expected);
  std::fclose(pipe);
}

TEST(LineReader, PeekShowsABoundedStartOfTheNextLineWithoutTakingIt) {
  TempFile endless(std::string(3 << 20, '\0'));  // no line end at all
  std::FILE* file = std::fopen(endless.Path().c_str(), "rb");
  LineReader in(file, 3 << 20);
  EXPECT_EQ(in.Peek(4096).size(), 4096u);
  std::fclose(file);

  LineReader memory(std::string_view(">one\r\nACGT\n"));
  EXPECT_EQ(memory.Peek(100), ">one");
  EXPECT_EQ(memory.Peek(2), ">o");
  EXPECT_EQ(LinesOf(memory), (Lines{">one", "ACGT"}));
}

TEST(LineReader, GaugeRisesToOneHundred) {
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes += "ACGTACGTAC\n";
  std::vector<int> seen;
  LineReader in(bytes, [&](int percent) { seen.push_back(percent); });
  in.Mark();
  (void)LinesOf(in);
  in.Rewind();
  (void)LinesOf(in);
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), 100);
  for (size_t i = 1; i < seen.size(); ++i) EXPECT_GT(seen[i], seen[i - 1]);
  EXPECT_EQ(seen.size(), 101u);  // 0 to 100, each once, never back after the rewind
}

}  // namespace
}  // namespace ovelt

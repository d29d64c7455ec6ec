// Nothing of the user's is lost: "update-nexus" replaces the file it read, and only that one,
// whole or not at all and only with consent; every file a command writes is written whole or
// not at all, and a failed write ends the command with status 1. The faults come from a child
// process whose files may not grow past a chosen byte (a full disk, or a kill at that byte).

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"
#include "support/write_faults.h"

namespace ovelt {
namespace {

using testing::EndedBy;
using testing::ReadBytes;
using testing::RunOvelt;
using testing::RunWithWriteLimit;
using testing::TempDir;
using testing::WriteFault;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

// A NEXUS file of 30 sequences of 6,000 sites, large enough for writes of several blocks.
std::string LargeNexus() {
  const int taxa = 30;
  const int sites = 6000;
  std::string text = "#NEXUS\n[kept comment]\nbegin data;\n dimensions ntax=30 nchar=6000;\n"
                     " format datatype=dna missing=? gap=-;\n matrix\n";
  const char bases[] = "ACGT";
  for (int t = 0; t < taxa; ++t) {
    text += " seq" + std::to_string(t + 1) + " ";
    for (int s = 0; s < sites; ++s) text += bases[(s * 7 + (s % (t + 2) == 0 ? t : 0)) % 4];
    text += "\n";
  }
  return text + " ;\nend;\n";
}

class SafeWriteCli : public ::testing::Test {
 protected:
  testing::CliResult Run(std::vector<std::string> args) {
    return RunOvelt(std::move(args), home_.Path().string());
  }
  TempDir home_;
  TempDir dir_;
};

TEST_F(SafeWriteCli, UpdateNexusKilledOrOnAFullDiskLeavesTheFileByteForByte) {
  const std::string original = LargeNexus();
  // The bytes a complete update writes, from a copy.
  const std::string copy = dir_.Write("copy.nex", original);
  const std::vector<std::string> settings = {"--set-def", "A=1-3", "--coding", "1-300", "--yes"};
  std::vector<std::string> args = {"update-nexus", copy};
  args.insert(args.end(), settings.begin(), settings.end());
  ASSERT_EQ(Run(args).status, 0);
  const std::string updated = ReadBytes(copy);
  ASSERT_GT(updated.size(), 150000u);

  const std::string path = dir_.Write("data.nex", original);
  args[1] = path;
  // Past the recent-files list (a few dozen bytes), at block edges, and one byte short.
  for (uint64_t limit : {uint64_t{1000}, uint64_t{65535}, uint64_t{65536}, uint64_t{131073},
                         uint64_t{updated.size() - 1}}) {
    for (WriteFault fault : {WriteFault::kDiskFull, WriteFault::kKilled}) {
      const auto end = RunWithWriteLimit(limit, fault, [&] {
        const auto r = Run(args);
        return r.status == 1 && r.err.find("Error in saving file") != std::string::npos ? 3 : 0;
      });
      EXPECT_TRUE(EndedBy(end, fault, 3)) << "limit " << limit;
      ASSERT_EQ(ReadBytes(path), original) << "limit " << limit;
    }
  }
  // A full disk leaves nothing behind; room for every byte lets the update through.
  for (const auto& entry : std::filesystem::directory_iterator(dir_.Path())) {
    const std::string name = entry.path().filename().string();
    if (name.find("data.nex.ovelt-") != std::string::npos) std::filesystem::remove(entry.path());
  }
  const auto end = RunWithWriteLimit(updated.size(), WriteFault::kKilled,
                                     [&] { return Run(args).status; });
  EXPECT_TRUE(end.exited && end.code == 0);
  EXPECT_EQ(ReadBytes(path), updated);
}

TEST_F(SafeWriteCli, UpdateNexusWritesExactlyTheFileItRead) {
  const std::string text = "#NEXUS\nbegin data;\n dimensions ntax=2 nchar=4;\n matrix\n a ACGT\n"
                           " b ACGA\n ;\nend;\n";
  const std::string plain = dir_.Write("t.nex", "another file");
  const std::string blank = dir_.Write("t.nex ", text);
  const auto r = Run({"update-nexus", blank, "--set-def", "A=1-2", "--yes"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(ReadBytes(plain), "another file");
  EXPECT_NE(ReadBytes(blank).find("TaxSet A = 1-2;"), std::string::npos) << ReadBytes(blank);
}

TEST_F(SafeWriteCli, UpdateNexusChangesTheFileOnlyWithConsent) {
  const std::string original = LargeNexus();
  const std::string path = dir_.Write("data.nex", original);
  auto r = Run({"update-nexus", path, "--set-def", "A=1-3"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("Careful!:\n" + path + " ?\n(answered Cancel; add --yes to answer OK)\n"),
            std::string::npos)
      << r.err;
  EXPECT_EQ(ReadBytes(path), original);

  // Dropping 27 of 30 sequences from the file is the second question; --yes answers both.
  r = Run({"update-nexus", path, "--include", "1-3"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(ReadBytes(path), original);
  r = Run({"update-nexus", path, "--include", "1-3", "--yes"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.err.find("Ovelt will update the data.nex Data File with only 3 sequences.\n"
                       "(answered OK)"),
            std::string::npos)
      << r.err;
  EXPECT_NE(ReadBytes(path).find("NTAX=3"), std::string::npos);
}

// Each file option of a run, on a full disk and killed halfway through its file: the old file
// of that name stays, and the run ends with status 1.
TEST_F(SafeWriteCli, EveryWrittenFileIsWholeOrNotThere) {
  struct Case {
    std::string name;
    std::vector<std::string> args;  // the file's name follows
  };
  const std::vector<Case> cases = {
      {"out", {"dna-polymorphism", kExample, "--out"}},
      {"json", {"dna-polymorphism", kExample, "--json"}},
      {"grid", {"sites", kExample, "--grid"}},
      {"session", {"dna-polymorphism", kExample, "--session"}},
      {"export", {"export", kExample, "--format", "nexus", "-o"}},
  };
  for (const Case& c : cases) {
    const std::string target = dir_.File(c.name + ".txt");
    std::vector<std::string> args = c.args;
    args.push_back(target);
    std::filesystem::remove(target);
    ASSERT_EQ(Run(args).status, 0) << c.name;
    const uint64_t size = std::filesystem::file_size(target);
    ASSERT_GT(size, 400u) << c.name;
    for (WriteFault fault : {WriteFault::kDiskFull, WriteFault::kKilled}) {
      dir_.Write(c.name + ".txt", "old");
      const auto end = RunWithWriteLimit(size - 100, fault, [&] { return Run(args).status; });
      EXPECT_TRUE(EndedBy(end, fault, 1)) << c.name;
      EXPECT_EQ(ReadBytes(target), "old") << c.name;
    }
  }
}

}  // namespace
}  // namespace ovelt

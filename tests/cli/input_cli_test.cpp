// The input of a command: read once from start to end, so that standard input ("-"), pipes and
// process substitution read as files do; the test of a file's kind is bounded, so that a device
// without line ends is refused at once.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "support/pipe_source.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::PipeSource;
using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";
const std::string kCorpus = std::string(OVELT_TEST_DATA) + "/corpus";

// `ovelt ARGS` with standard input fed from `bytes`, in a child process; its exit status, and
// what it printed on standard output in `out`.
int RunWithInput(const std::string& bytes, std::vector<std::string> args, const TempDir& home,
                 std::string& out) {
  const std::string captured = home.File("stdout.txt");
  PipeSource source(bytes);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(source.Fd(), 0);
    const auto r = RunOvelt(std::move(args), home.Path().string());
    std::ofstream(captured, std::ios::binary) << r.out;
    ::_exit(r.status);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  out = ReadBytes(captured);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(InputCli, ADeviceWithoutLineEndsIsRefusedAtOnce) {
  TempDir home;
  const auto r = RunOvelt({"info", "/dev/zero"}, home.Path().string());
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Ovelt:\nInput data file: /dev/zero\n\nBad or unknown file format\n");
}

// Every file of the corpus reads through a pipe exactly as from its file (PHYLIP files look
// ahead to find their layout, and come back without seeking).
TEST(InputCli, AProcessSubstitutionReadsAsTheFileDoes) {
  TempDir home;
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(kCorpus)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = entry.path().string();
    const auto direct = RunOvelt({"info", path}, home.Path().string());
    PipeSource source(ReadBytes(path));
    const auto piped = RunOvelt({"info", source.Path()}, home.Path().string());
    EXPECT_EQ(piped.status, direct.status) << path << "\n" << piped.err;
    EXPECT_EQ(piped.out, direct.out) << path;
    ++files;
  }
  EXPECT_GT(files, 20);
}

TEST(InputCli, ADashReadsStandardInputAndIsNotARecentFile) {
  TempDir home;
  std::string out;
  EXPECT_EQ(RunWithInput(ReadBytes(kExample), {"dna-polymorphism", "-"}, home, out), 0);
  const auto direct = RunOvelt({"dna-polymorphism", kExample}, home.Path().string());
  ASSERT_EQ(direct.status, 0);
  // The same report, but for the name of the input.
  const std::string name_line = " Input Data File: " + kExample;
  std::string expected = direct.out;
  expected.replace(expected.find(name_line), name_line.size(), " Input Data File: -");
  EXPECT_EQ(out, expected);
  // Only the file named on the command line is remembered.
  EXPECT_EQ(ReadBytes(home.File("OVELTCFA.INI")), kExample + "\r\n");

  PipeSource source(ReadBytes(kExample));
  ASSERT_EQ(RunOvelt({"info", source.Path()}, home.Path().string()).status, 0);
  EXPECT_EQ(ReadBytes(home.File("OVELTCFA.INI")), kExample + "\r\n");
}

TEST(InputCli, UpdateNexusHasNoFileToRewriteFromStandardInput) {
  TempDir home;
  const std::string nexus = "#NEXUS\nbegin data;\n dimensions ntax=2 nchar=4;\n matrix\n a ACGT\n"
                            " b ACGA\n ;\nend;\n";
  std::string out;
  EXPECT_EQ(RunWithInput(nexus, {"update-nexus", "-", "--yes"}, home, out), 1);
  PipeSource source(nexus);
  const auto r = RunOvelt({"update-nexus", source.Path(), "--yes"}, home.Path().string());
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("which is not a regular file: there is no file to update."),
            std::string::npos)
      << r.err;
}

}  // namespace
}  // namespace ovelt

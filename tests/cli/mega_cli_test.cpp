// The answers of the "MEGA Data File" dialog on the command line: one rule for every command.

#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

const std::string kMega = "#MEGA\n!Title t;\n#\nACGT\n#b\nAC.A\n#c\nAAGA\n";

TEST(MegaCli, AFirstSequenceWithoutANameIsRead) {
  TempDir home;
  const std::string in = home.Write("e.meg", kMega);
  const auto r = RunOvelt({"info", in}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Total Number of Sequences     3\n"), std::string::npos) << r.out;
}

TEST(MegaCli, InfoAndExportTakeAndRefuseTheSameSymbols) {
  TempDir home;
  const std::string in = home.Write("e.meg", kMega);
  const std::string out = home.File("e.fas");
  for (const char* match : {"A", "(", "~"}) {
    const auto info = RunOvelt({"info", in, "--mega-match", match}, home.Path().string());
    const auto exported = RunOvelt({"export", in, "--mega-match", match, "-f", "fasta", "-o", out},
                                   home.Path().string());
    EXPECT_EQ(info.status, exported.status) << match;
    EXPECT_EQ(info.err, exported.err) << match;
  }
  const auto nucleotide = RunOvelt({"info", in, "--mega-match", "A"}, home.Path().string());
  EXPECT_EQ(nucleotide.status, 1);
  EXPECT_EQ(nucleotide.err,
            "Invalid Selection :\nThe Matching Symbol can not be a nucleotide: 'A'\n");
  // A symbol that passes reads the file with it, in both commands.
  const std::string tilde_file = home.Write("t.meg", "#MEGA\n#a\nACGT\n#b\nAC~A\n");
  EXPECT_EQ(RunOvelt({"info", tilde_file, "--mega-match", "~"}, home.Path().string()).status, 0);
  const auto tilde = RunOvelt({"export", tilde_file, "--mega-match", "~", "-f", "fasta", "-o", out},
                              home.Path().string());
  EXPECT_EQ(tilde.status, 0) << tilde.err;
  EXPECT_NE(ReadBytes(out).find(">b\r\nACGA\r\n"), std::string::npos) << ReadBytes(out);
}

}  // namespace
}  // namespace ovelt

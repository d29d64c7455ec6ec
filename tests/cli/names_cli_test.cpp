// Sequence names through the command line: cut at characters (a UTF-8 letter is never split),
// control characters kept out of reports, and the names of the user's own file left as they
// were by an update.

#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

const std::string kMuller = "M\xC3\xBCller_\xC3\x98stergaard_long_name";  // Müller_Østergaard...

TEST(NamesCli, AControlCharacterOfANameNeverReachesAReport) {
  TempDir home;
  const std::string in = home.Write("n.fas", ">a\x1b[31mred\x07\nACGTACGT\n>b\nACGTACGA\n>c\nACCTACGA\n");
  const auto r = RunOvelt({"dna-polymorphism", in, "--include", "1-2"}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("       a?[31mred?"), std::string::npos) << r.out;
  for (char c : r.out) EXPECT_FALSE(static_cast<unsigned char>(c) < 32 && c != '\n') << r.out;
}

TEST(NamesCli, ReportsAndPhylipFilesCutNamesAtCharacters) {
  TempDir home;
  const std::string in =
      home.Write("n.fas", ">" + kMuller + "\nACGTACGT\n>b\nACGTACGA\n>c\nACCTACGA\n");
  auto r = RunOvelt({"dna-polymorphism", in, "--include", "1-2"}, home.Path().string());
  // The name field holds 20 characters: 22 bytes here, with both letters whole.
  EXPECT_NE(r.out.find("       M\xC3\xBCller_\xC3\x98stergaard_lo\n"), std::string::npos) << r.out;

  const std::string phy = home.File("n.phy");
  r = RunOvelt({"export", in, "-f", "phylip", "-o", phy}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(ReadBytes(phy).substr(0, 25), "3 8\r\nM\xC3\xBCller_\xC3\x98st" "ACGTACGT");
  // Read back, the name ends where the writer ended it, and the cells follow.
  r = RunOvelt({"export", phy, "-f", "fasta", "-o", home.File("back.fas")}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(ReadBytes(home.File("back.fas")).find("\r\nACGTACGT\r\n>b\r\nACGTACGA\r\n>c"),
            std::string::npos);
  EXPECT_EQ(ReadBytes(home.File("back.fas")).substr(0, 14), ">M\xC3\xBCller_\xC3\x98st ");
}

// The 20-character field and the cleaning of the writers are for the program and for new
// files; an update writes each name as the file had it.
TEST(NamesCli, UpdateNexusLeavesTheNamesOfTheFileAsTheyWere) {
  TempDir home;
  const std::string names[] = {"'" + kMuller + "'", "'Homo sapiens (Kung-7)'",
                               "'it''s_quoted'", "A-2301", "B.bis"};
  std::string text = "#NEXUS\nbegin data;\n dimensions ntax=5 nchar=4;\n matrix\n";
  for (const std::string& name : names) text += " " + name + " ACGT\n";
  text += " ;\nend;\n";
  const std::string in = home.Write("n.nex", text);
  const auto r =
      RunOvelt({"update-nexus", in, "--set-def", "Pair=1-2", "--yes"}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string updated = ReadBytes(in);
  for (const std::string& name : names)
    EXPECT_NE(updated.find("\r\n" + name + " "), std::string::npos) << name << "\n" << updated;
  // Excluded sequences leave with their names; the others keep theirs.
  const auto fewer = RunOvelt({"update-nexus", in, "--exclude", "2", "--yes"}, home.Path().string());
  ASSERT_EQ(fewer.status, 0) << fewer.err;
  const std::string after = ReadBytes(in);
  EXPECT_EQ(after.find("Homo sapiens"), std::string::npos);
  EXPECT_NE(after.find("\r\n'it''s_quoted' "), std::string::npos) << after;
  EXPECT_NE(after.find("\r\n'" + kMuller + "' "), std::string::npos);
}

}  // namespace
}  // namespace ovelt

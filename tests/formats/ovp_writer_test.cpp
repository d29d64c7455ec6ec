// Writing preferred/unpreferred codon tables, and reading them back.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/genetic_code.h"
#include "formats/ovp_file.h"
#include "formats/ovp_writer.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

int Codon(const char* text) { return CodonIndex(text[0], text[1], text[2]); }

CodPrefUnPref SmallTable() {
  CodPrefUnPref table;
  table.creat(1, kUnpreferred);
  table.sName("Small");
  table.sFile(1);
  for (const char* codon : {"TTC", "CTC", "CTG", "ATC", "GTC", "GTG", "TCC", "CCC", "ACC"})
    table.sPrefUnPref(Codon(codon), kPreferred1);
  table.sPrefUnPref(Codon("AAG"), kPreferred2);
  table.sPrefUnPref(Codon("GGA"), kUnknownPreference);
  return table;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

TEST(OvpWriter, LinesOfOneTable) {
  // Codons in index order (T, C, A, G), eight to a line.
  EXPECT_EQ(PrefTableLines(SmallTable()),
            (std::vector<std::string>{"    PREFUNPREFCODONS GENETICCODE=Universal Small = ",
                                      "        PREF*:",
                                      "        TTC TCC CTC CTG CCC ATC ACC GTC",
                                      "        GTG,",
                                      "        PREF**:",
                                      "        AAG,",
                                      "        UNKNOWN:",
                                      "        GGA;"}));
}

TEST(OvpWriter, BlockHoldsUserTablesAndTheTableInUse) {
  GCPrefUnPref store;
  store.creatModifyGC(SmallTable());
  CodPrefUnPref empty;
  empty.creat(1, kUnpreferred);
  empty.sName("Empty");
  store.creatModifyGC(empty);
  const std::vector<std::string> lines = CodonUsageBlockLines(store, "Escherichia_coli");
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.front(), "BEGIN CODONUSAGE;");
  EXPECT_EQ(lines.back(), "END;");
  const std::string text = Joined(lines);
  EXPECT_NE(text.find("GENETICCODE=Universal Escherichia_coli = "), std::string::npos);
  EXPECT_NE(text.find("GENETICCODE=Universal Small = "), std::string::npos);
  EXPECT_EQ(text.find("Empty"), std::string::npos);  // holds no information
  EXPECT_EQ(text.find("Drosophila"), std::string::npos);  // built in, not in use
  // Nothing to write: no block.
  EXPECT_TRUE(CodonUsageBlockLines(GCPrefUnPref(), "None").empty());
}

TEST(OvpWriter, WrittenTablesReadBackTheSame) {
  GCPrefUnPref store;
  store.creatModifyGC(SmallTable());
  OVPFile parser;
  ASSERT_TRUE(parser.Parse(Joined(CodonUsageBlockLines(store, "None")))) << parser.message();
  ASSERT_EQ(parser.tables().size(), 1u);
  const CodPrefUnPref original = SmallTable();
  for (int i = 1; i <= 64; ++i)
    EXPECT_EQ(parser.tables()[0].prefUnPref(i), original.prefUnPref(i)) << i;
}

// Status 6 has no head in the writer: a table edited with it loses that level once saved.
TEST(OvpWriter, TheThirdPreferenceLevelIsLostOnSaving) {
  CodPrefUnPref table = SmallTable();
  table.sPrefUnPref(Codon("GAG"), kPreferred3);
  const std::string text = "BEGIN CODONUSAGE;\n" + Joined(PrefTableLines(table)) + "END;\n";
  EXPECT_EQ(text.find("PREF***"), std::string::npos);
  OVPFile parser;
  ASSERT_TRUE(parser.Parse(text)) << parser.message();
  EXPECT_EQ(parser.tables()[0].prefUnPref(Codon("GAG")), kUnpreferred);
  EXPECT_EQ(parser.tables()[0].prefUnPref(Codon("AAG")), kPreferred2);
}

TEST(OvpWriter, ATableOfTheThirdLevelAloneStillCloses) {
  CodPrefUnPref table;
  table.creat(1, kUnpreferred);
  table.sName("Top");
  table.sPrefUnPref(Codon("TTC"), kPreferred3);
  const std::vector<std::string> lines = PrefTableLines(table);
  EXPECT_EQ(lines.back(), "        ;");
  OVPFile parser;
  EXPECT_TRUE(parser.Parse("BEGIN CODONUSAGE;\n" + Joined(lines) + "END;\n"));
}

TEST(OvpWriter, FileEndsLinesWithCarriageReturnAndLineFeed) {
  testing::TempDir dir;
  const std::string path = (dir.Path() / "small.ovp").string();
  ASSERT_TRUE(WriteOvpFile(path, SmallTable()));
  std::ifstream in(path, std::ios::binary);
  std::stringstream bytes;
  bytes << in.rdbuf();
  EXPECT_EQ(bytes.str().rfind("BEGIN CODONUSAGE;\r\n    PREFUNPREFCODONS", 0), 0u);
  EXPECT_EQ(bytes.str().substr(bytes.str().size() - 6), "END;\r\n");
  GCPrefUnPref store;
  EXPECT_EQ(ReadOvpFile(path, 1, store), "");
  EXPECT_NE(store.CodPrefUnPref("Small"), nullptr);
}

}  // namespace
}  // namespace ovelt

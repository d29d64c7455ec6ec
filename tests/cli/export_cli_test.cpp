// `ovelt export` and `ovelt update-nexus`: the written files, the options of "Nexus File
// Format. Options" as flags, and the refusals.

#include <gtest/gtest.h>

#include <regex>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

// Three sequences of eight sites, the third with a gap and missing data.
const std::string kFasta = ">one\nACGTACGT\n>two\nACGTACGA\n>three\nTCG-ACN?\n";

class ExportCli : public ::testing::Test {
 protected:
  std::string Run(std::vector<std::string> args, int expected_status = 0) {
    last_ = RunOvelt(std::move(args), home_.Path().string());
    EXPECT_EQ(last_.status, expected_status) << last_.err;
    return last_.err;
  }
  TempDir home_;
  TempDir dir_;
  testing::CliResult last_;
};

TEST_F(ExportCli, FastaWithTheStampOfTheDay) {
  const std::string in = dir_.Write("in.fas", kFasta);
  Run({"export", in, "--format", "fasta", "-o", dir_.File("out.fas")});
  const std::string text = ReadBytes(dir_.File("out.fas"));
  const std::regex expected(
      ">one   \\[by Ovelt Ver\\. 4\\.00\\.5, from file: in\\.fas     [A-Z][a-z]{2} [0-9]{1,2}, "
      "[0-9]{4}\\]\r\nACGTACGT\r\n>two\r\nACGTACGA\r\n>three\r\nTCG-ACNN\r\n");
  EXPECT_TRUE(std::regex_match(text, expected)) << text;
}

TEST_F(ExportCli, PhylipMegaAndNbrf) {
  const std::string in = dir_.Write("in.fas", kFasta);
  Run({"export", in, "-f", "phylip", "-o", dir_.File("o.phy")});
  EXPECT_EQ(ReadBytes(dir_.File("o.phy")),
            "3 8\r\none       ACGTACGT\r\ntwo       ACGTACGA\r\nthree     TCG-ACNN\r\n");
  Run({"export", in, "-f", "mega", "-o", dir_.File("o.meg")});
  EXPECT_NE(ReadBytes(dir_.File("o.meg")).find("\r\n#three\r\nTCG-AC??\r\n"), std::string::npos);
  Run({"export", in, "-f", "nbrf", "-o", dir_.File("o.nbr")});
  EXPECT_NE(ReadBytes(dir_.File("o.nbr")).find("\r\nTCG-ACNN*\r\n"), std::string::npos);
}

TEST_F(ExportCli, NexusWithTheOptionsOfTheDialogAsFlags) {
  const std::string in = dir_.Write("in.fas", kFasta);
  Run({"export", in, "-f", "nexus", "-o", dir_.File("a.nex"), "--nexus-version", "1",
       "--line-delimiter", "3", "--use-matching-symbol=false", "--missing-symbol", "N",
       "--gap-symbol", "~"});
  const std::string text = ReadBytes(dir_.File("a.nex"));
  EXPECT_EQ(text.find('\r'), std::string::npos);
  EXPECT_NE(text.find("\nBEGIN DATA;\nDIMENSIONS NTAX=3 NCHAR=8;\n"
                      "FORMAT DATATYPE=DNA  MISSING=N GAP=~;\nMATRIX\n"
                      "one    ACGTACGT\ntwo    ACGTACGA\nthree  TCG~ACNN\n;\nEND;\n"),
            std::string::npos)
      << text;
}

TEST_F(ExportCli, NexusKeepsSetsAndCodingAndNumbersSetsAsWritten) {
  const std::string in = dir_.Write("in.fas", kFasta);
  const std::string err = Run({"export", in, "-f", "nexus", "-o", dir_.File("b.nex"), "--set-def",
                               "Pop=1,3", "--exclude", "1", "--coding", "1-6", "--genetic-code",
                               "mtDNA.Mam", "--line-delimiter", "2"});
  EXPECT_NE(err.find("The active Data File contains only 2 sequences. Ovelt will generate a Data "
                     "File with 2 sequences."),
            std::string::npos)
      << err;
  const std::string text = ReadBytes(dir_.File("b.nex"));
  EXPECT_EQ(text.find('\n'), std::string::npos);
  EXPECT_NE(text.find("\rTAXLABELS\rtwo\rthree;\r"), std::string::npos) << text;
  EXPECT_NE(text.find("\r   TaxSet Pop = 2;\r"), std::string::npos) << text;
  EXPECT_NE(text.find("\r      N: 7-8,\r      1: 1-4\\3,\r      2: 2-5\\3,\r      3: 3-6\\3;\r"
                      "   CODESET * UNTITLED = mtDNA.Mam: all;\r"),
            std::string::npos)
      << text;
}

TEST_F(ExportCli, RefusalsOfTheDialogAndOfTheWrite) {
  const std::string in = dir_.Write("in.fas", kFasta);
  std::string err =
      Run({"export", in, "-f", "nexus", "-o", dir_.File("c.nex"), "--gap-symbol", "A"}, 1);
  EXPECT_NE(err.find("Invalid Selection :\nMissing data"), std::string::npos) << err;
  err = Run({"export", in, "-f", "nexus", "-o", dir_.File("c.nex"), "--block-length", "0"}, 1);
  EXPECT_NE(err.find("The minimum number of nucleotides per block is 1"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(dir_.File("c.nex")));
  err = Run({"export", in, "-f", "fasta", "-o", dir_.File("none/c.fas")}, 1);
  EXPECT_NE(err.find("Error in saving file"), std::string::npos) << err;
  Run({"export", in, "-f", "roehl", "-o", dir_.File("c.rdf")}, 2);
}

TEST_F(ExportCli, UpdateNexusOnlyForANexusFile) {
  const std::string in = dir_.Write("in.fas", kFasta);
  const std::string err = Run({"update-nexus", in}, 1);
  EXPECT_NE(err.find("\"Update NEXUS Data File\""), std::string::npos) << err;
  EXPECT_EQ(ReadBytes(in), kFasta);
}

TEST_F(ExportCli, UpdateNexusAddsTheSettingsAndKeepsATreesBlockInPlace) {
  const std::string trees = "begin trees;\n  tree one = [&U] (one,(two,three));\nend;";
  const std::string in =
      dir_.Write("in.nex",
                 "#NEXUS\n[by hand]\nbegin data;\n dimensions ntax=3 nchar=8;\n"
                 " format datatype=dna missing=? gap=-;\n matrix\n one ACGTACGT\n two ACGTACGA\n"
                 " three TCG-AC??\n ;\nend;\n\n" +
                     trees + "\n");
  Run({"update-nexus", in, "--set-def", "Pair=1-2", "--coding", "1-6", "--yes"});
  const std::string text = ReadBytes(in);
  std::string trees_crlf = std::regex_replace(trees, std::regex("\n"), "\r\n");
  const size_t at = text.find("\r\n\r\n" + trees_crlf + "\r\n");
  ASSERT_NE(at, std::string::npos) << text;
  EXPECT_EQ(text.substr(0, 19), "#NEXUS\r\n[by hand]\r\n");
  // The DATA block of the file stays one DATA block, in its place.
  EXPECT_LT(text.find("BEGIN DATA;\r\nDIMENSIONS NTAX=3 NCHAR=8;\r\n"), at);
  EXPECT_GT(text.find("   TaxSet Pair = 1-2;"), at);
  EXPECT_GT(text.find("   CODONPOSSET * UNTITLED = "), at);
  // The updated file opens again, with the settings it now holds.
  Run({"info", in});
  EXPECT_NE(last_.out.find(" Codon Assignation             Yes\n"), std::string::npos) << last_.out;
  EXPECT_NE(last_.out.find(" Sequence Sets Definition      Yes\n"), std::string::npos);
  EXPECT_NE(last_.out.find(" File Format                   NEXUS\n"), std::string::npos)
      << last_.out;
  EXPECT_NE(last_.out.find(" Total Number of Sequences     3\n"), std::string::npos);
}

}  // namespace
}  // namespace ovelt

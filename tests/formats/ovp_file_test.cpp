// The lexer and parser of preferred/unpreferred codon table files.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "core/genetic_code.h"
#include "formats/ovp_file.h"
#include "formats/ovp_lexer.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

int Codon(const char* text) { return CodonIndex(text[0], text[1], text[2]); }

const std::string kOvpDir = std::string(OVELT_TEST_DATA) + "/ovp/";

std::vector<int> Codes(const std::string& line) {
  std::vector<int> codes;
  for (const OvpToken& token : lexyacc(line)) codes.push_back(token.code);
  return codes;
}

TEST(OvpLexer, TokenCodes) {
  EXPECT_EQ(Codes("BEGIN CODONUSAGE;"), (std::vector<int>{0, 2, 4}));
  EXPECT_EQ(Codes("end;"), (std::vector<int>{1, 4}));
  EXPECT_EQ(Codes("  PREFUNPREFCODONS GENETICCODE=Universal T1 = "),
            (std::vector<int>{10, 13, 12, kOvpWord, kOvpWord, 12}));
  EXPECT_EQ(Codes("pref*: pref**: Pref***: unknown:"),
            (std::vector<int>{6, 3, 7, 3, 11, 3, 16, 3}));
  EXPECT_EQ(Codes("TTC,CTC;"), (std::vector<int>{kOvpWord, 5, kOvpWord, 4}));
  // "#" and the carriage return that ends a line end its tokens.
  EXPECT_EQ(Codes("TTC # CTC"), (std::vector<int>{kOvpWord}));
  EXPECT_EQ(Codes("TTC\r CTC"), (std::vector<int>{kOvpWord}));
  EXPECT_EQ(Codes("TT(C"), (std::vector<int>{kOvpWord, kOvpBad, kOvpWord}));
}

TEST(OvpLexer, GeneticCodeKeywords) {
  EXPECT_EQ(getToken("UNIVNUC"), 1);
  EXPECT_EQ(getToken("universal"), 1);
  EXPECT_EQ(getToken("UNIVERSAL.EXT"), 1);
  EXPECT_EQ(getToken("mtDNA.Mam"), 2);
  EXPECT_EQ(getToken("UNIVmtDNA"), 2);
  EXPECT_EQ(getToken("MTDNA.DROS.EXT"), 3);
  EXPECT_EQ(getToken("mtDNA.Yeast"), 4);
  EXPECT_EQ(getToken("mtDNA.MoldProt"), 5);
  EXPECT_EQ(getToken("mtDNA.Echinoderm"), 6);
  EXPECT_EQ(getToken("MTDNA.FLATWORM.EXT"), 7);
  EXPECT_EQ(getToken("Nuclear.Ciliate"), 8);
  EXPECT_EQ(getToken("NUCLEAR.CANDIDA.EXT"), 9);
  EXPECT_EQ(getToken("mtDNA.Ascidian"), 10);
  EXPECT_EQ(getToken("anything"), 10);
}

TEST(OvpFile, ReadsTablesAndTheirClasses) {
  GCPrefUnPref store;
  ASSERT_EQ(ReadOvpFile(kOvpDir + "two_tables.ovp", 1, store), "");
  const CodPrefUnPref* hand = store.CodPrefUnPref("Hand_made");
  ASSERT_NE(hand, nullptr);
  EXPECT_EQ(hand->GC(), 1);
  EXPECT_EQ(hand->File(), 1);
  for (const char* codon : {"TTC", "CTC", "CTG", "ATC", "GTG"})
    EXPECT_EQ(hand->prefUnPref(Codon(codon)), kPreferred1) << codon;
  EXPECT_EQ(hand->prefUnPref(Codon("AAG")), kPreferred2);
  EXPECT_EQ(hand->prefUnPref(Codon("TTA")), kUnknownPreference);
  EXPECT_EQ(hand->prefUnPref(Codon("TTT")), kUnpreferred);  // not listed
  EXPECT_EQ(hand->prefUnPref(Codon("TAA")), kStopStatus);   // from the code
  EXPECT_EQ(hand->prefUnPref(Codon("ATG")), kSingleCodon);

  const CodPrefUnPref* mito = store.CodPrefUnPref("Mito_table");
  ASSERT_NE(mito, nullptr);
  EXPECT_EQ(mito->GC(), 2);
  // PREF*** is read, and "U" stands for "T".
  EXPECT_EQ(mito->prefUnPref(Codon("TTC")), kPreferred3);
  EXPECT_EQ(mito->prefUnPref(Codon("CTC")), kPreferred3);
  EXPECT_EQ(mito->prefUnPref(Codon("GCA")), kUnknownPreference);
  EXPECT_EQ(mito->prefUnPref(Codon("AGA")), kStopStatus);  // a stop of code 2
}

TEST(OvpFile, UAndTGiveTheSameCodon) {
  OVPFile a, b;
  ASSERT_TRUE(a.Parse("BEGIN CODONUSAGE;\nPREFUNPREFCODONS X =\nPREF*: UUC uCu;\nEND;\n"));
  ASSERT_TRUE(b.Parse("BEGIN CODONUSAGE;\nPREFUNPREFCODONS X =\nPREF*: TTC TCT;\nEND;\n"));
  for (int i = 1; i <= 64; ++i)
    EXPECT_EQ(a.tables()[0].prefUnPref(i), b.tables()[0].prefUnPref(i)) << i;
  EXPECT_EQ(a.tables()[0].prefUnPref(Codon("TTC")), kPreferred1);
}

TEST(OvpFile, TheOlderFormTakesTheCurrentCode) {
  OVPFile parser(4);
  std::ifstream in(kOvpDir + "old_form.ovp");
  const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  ASSERT_TRUE(parser.Parse(text)) << parser.message();
  EXPECT_TRUE(parser.final_fd());
  EXPECT_EQ(parser.nameLastTable(), "Old_form");
  EXPECT_EQ(parser.GC(), 4);
}

TEST(OvpFile, ATableOfTheSameNameReplacesTheOlderOne) {
  testing::TempDir dir;
  const std::string path = (dir.Path() / "t.ovp").string();
  GCPrefUnPref store;
  std::ofstream(path) << "BEGIN CODONUSAGE;\nPREFUNPREFCODONS GENETICCODE=Universal T = \n"
                         "PREF*: TTC;\nPREFUNPREFCODONS GENETICCODE=Universal T = \n"
                         "PREF**: TTC;\nEND;\n";
  ASSERT_EQ(ReadOvpFile(path, 1, store), "");
  EXPECT_EQ(store.numGC(1), 9);
  EXPECT_EQ(store.CodPrefUnPref("T")->prefUnPref(Codon("TTC")), kPreferred2);
}

std::string FaultOf(const std::string& text) {
  OVPFile parser;
  EXPECT_FALSE(parser.Parse(text));
  return parser.message();
}

TEST(OvpFile, FaultsCarryTheirLineNumber) {
  const std::string head = "BEGIN CODONUSAGE;\nPREFUNPREFCODONS X =\n";
  EXPECT_EQ(FaultOf(head + "PREF*: TTC XYZ;\nEND;\n"), "Lexical error in #3");
  EXPECT_EQ(FaultOf(head + "PREF*: TT;\nEND;\n"), "Lexical error in #3");
  // A second head for one class.
  EXPECT_EQ(FaultOf(head + "PREF*: TTC,\nPREF*: CTC;\nEND;\n"), "Parser error in #4");
  // A head while the class before is open.
  EXPECT_EQ(FaultOf(head + "PREF*: TTC\nUNKNOWN: CTC;\nEND;\n"), "Parser error in #4");
  // A codon given twice.
  EXPECT_EQ(FaultOf(head + "PREF*: TTC,\nUNKNOWN: TTC;\nEND;\n"), "Parser error in #4");
  // Codons before any head.
  EXPECT_EQ(FaultOf(head + "TTC;\nEND;\n"), "Parser error in #3");
  EXPECT_EQ(FaultOf("BEGIN CODONUSAGE\n"), "Parser error in #1");
  EXPECT_EQ(FaultOf("BEGIN CODONUSAGE;\nPREFUNPREFCODONS GENETICCODE Universal X =\n"),
            "Parser error in #2");
  EXPECT_EQ(FaultOf(head + "PREF*: TTC;\nEND;\nTTC\n"), "Parser error in #5");
  EXPECT_EQ(FaultOf(head + "PREF*: TTC;\n"), "Parser error in #3");  // no END
}

TEST(OvpFile, FileReports) {
  testing::TempDir dir;
  GCPrefUnPref store;
  const std::string missing = (dir.Path() / "none.ovp").string();
  EXPECT_EQ(ReadOvpFile(missing, 1, store), "Disk not ready. Data file: " + missing);
  const std::string empty = (dir.Path() / "empty.ovp").string();
  std::ofstream(empty) << "\n# nothing here\n";
  EXPECT_EQ(ReadOvpFile(empty, 1, store),
            "Input data file: " + empty +
                "\n\n        Data File Error !\n\nBad or unknown file format");
}

TEST(OvpFile, AFailedReadKeepsTheTablesAlreadyRead) {
  testing::TempDir dir;
  const std::string path = (dir.Path() / "t.ovp").string();
  std::ofstream(path) << "BEGIN CODONUSAGE;\nPREFUNPREFCODONS First =\nPREF*: TTC;\n"
                         "PREFUNPREFCODONS Second =\nPREF*: QQQ;\nEND;\n";
  GCPrefUnPref store;
  EXPECT_EQ(ReadOvpFile(path, 1, store), "Lexical error in #5");
  EXPECT_NE(store.CodPrefUnPref("First"), nullptr);
  EXPECT_EQ(store.CodPrefUnPref("Second"), nullptr);
}

}  // namespace
}  // namespace ovelt

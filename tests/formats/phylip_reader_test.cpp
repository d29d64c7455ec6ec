// The PHYLIP reader on hand-made files: header, layout test and both layouts.

#include <gtest/gtest.h>

#include <string>

#include "formats/read_file.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::ErrorOf;
using testing::kPhylipHead;
using testing::Row;

LoadedFile Phylip(const std::string& text) { return ReadDataBuffer(text, "t.txt"); }

// A cell pattern of `length` cells that differs for each sequence number.
std::string Cells(int seq, int length) {
  std::string cells;
  for (int i = 0; i < length; ++i) cells += "ACGT"[(i * (seq + 1) + seq) % 4];
  return cells;
}

std::string Name10(const std::string& name) { return (name + "          ").substr(0, 10); }

TEST(PhylipHeader, TrailingBlankAfterTheNumbers) {
  std::string text = "10 500 \n";
  for (int s = 1; s <= 10; ++s) text += Name10("s" + std::to_string(s)) + Cells(s, 500) + "\n";
  const LoadedFile f = Phylip(text);
  EXPECT_EQ(f.FileKind, kPhylip);
  ASSERT_EQ(f.NumSeqs(), 10);
  EXPECT_EQ(f.NumSites, 500);
  for (int s = 1; s <= 10; ++s) EXPECT_EQ(Row(f, s), Cells(s, 500));
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(f.BlockLength, 60);
}

TEST(PhylipHeader, OneNumberIsAMatrixOfGeneticDistances) {
  const std::string expected =
      "Input data file: t.txt\n\nBad or unknown file format. Ovelt can not read PHYLIP Data "
      "Files with Genetic Distances Information.";
  EXPECT_EQ(ErrorOf("    4\nA         0.0 0.1 0.2 0.3\n"), expected);
  EXPECT_EQ(ErrorOf("4   \n"), expected);
  EXPECT_EQ(ErrorOf("4 0\n"), expected);
}

TEST(PhylipHeader, BadNumbers) {
  EXPECT_EQ(ErrorOf("   5   855   I\n", kPhylip), kPhylipHead + "Invalid number of sites");
  EXPECT_EQ(ErrorOf("5 85x5\n", kPhylip), kPhylipHead + "Invalid number of sites");
  EXPECT_EQ(ErrorOf("5 855 3\n", kPhylip), kPhylipHead + "Invalid number of sites");
  EXPECT_EQ(ErrorOf("5x 855\n", kPhylip), kPhylipHead + "Invalid number of sequences");
  EXPECT_EQ(ErrorOf("0 855\n", kPhylip), kPhylipHead + "Invalid number of sequences");
  // More than the program holds says the limit.
  EXPECT_EQ(ErrorOf("2 99999999999\n", kPhylip),
            kPhylipHead + "The file declares 99999999999 sites. The maximum number of sites is "
                          "2147483647.");
  EXPECT_EQ(ErrorOf("32768 5\n", kPhylip),
            kPhylipHead + "The file declares 32768 sequences. The maximum number of sequences is "
                          "32767.");
  EXPECT_EQ(ErrorOf("1000000000 10\n", kPhylip),
            kPhylipHead + "The file declares 1000000000 sequences. The maximum number of sequences "
                          "is 32767.");
  // A number of sites the program holds but the file does not is no limit of the program.
  EXPECT_EQ(ErrorOf("5 1000000000\na         ACGT\n", kPhylip),
            kPhylipHead + "Invalid number of sites");
}

TEST(PhylipReader, NameOfTenCharactersRunsStraightIntoTheCells) {
  const LoadedFile f = Phylip(" 2 5\nABCDEFGHIJACGTA\nshort     AC-?N\n");
  EXPECT_EQ(f.Names[1], "ABCDEFGHIJ          ");
  EXPECT_EQ(f.Names[2], "short               ");
  EXPECT_EQ(Row(f, 1), "ACGTA");
  EXPECT_EQ(Row(f, 2), "AC-??");
}

// Ten characters, as other programs write them: a letter of two bytes counts once, and the
// cells start after the tenth character, not after the tenth byte.
TEST(PhylipReader, ANameOfTenUtf8CharactersRunsIntoTheCells) {
  const LoadedFile f = Phylip("2 4\nM\xC3\xBCller_A01ACGT\n\xC3\x98st       AGGT\n");
  EXPECT_EQ(f.Names[1], "M\xC3\xBCller_A01" + std::string(10, ' '));
  EXPECT_EQ(f.Names[2], "\xC3\x98st" + std::string(17, ' '));
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "AGGT");
}

TEST(PhylipReader, NameMayHoldBlanks) {
  const LoadedFile f = Phylip("2 4\nH. Sapiens ACGT\nPan t     AGGT\n");
  EXPECT_EQ(f.Names[1], "H. Sapiens          ");
  EXPECT_EQ(f.Names[2], "Pan t               ");
}

TEST(PhylipReader, SequentialWrappedOverLines) {
  const LoadedFile f =
      Phylip("2 10\nfirst     ACGTA\nCGT\nTA\nsecond    AAAA\nCCCC\nGG\n");
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(Row(f, 1), "ACGTACGTTA");
  EXPECT_EQ(Row(f, 2), "AAAACCCCGG");
}

TEST(PhylipReader, NameOnItsOwnLine) {
  const LoadedFile f = Phylip("2 6\n\nHuman\nACGTAC\nMouse\nAC.TAA\n");
  EXPECT_EQ(f.Names[1], "Human               ");
  EXPECT_EQ(Row(f, 2), "ACGTAA");
}

TEST(PhylipReader, Interleaved) {
  const LoadedFile f = Phylip(
      "3 10\nTurkey    AAGCTN\nSalmo gairAAGCC.\nH. SapiensACCGG?\n\nGAGC\nGA.C\nA-AG\n");
  EXPECT_EQ(f.Interleaved, 1);
  EXPECT_EQ(f.BlockLength, 6);
  EXPECT_EQ(f.Names[2], "Salmo gair          ");
  EXPECT_EQ(Row(f, 1), "AAGCT?GAGC");
  EXPECT_EQ(Row(f, 2), "AAGCC?GAGC");
  EXPECT_EQ(Row(f, 3), "ACCGG?A-AG");
}

// The layout test alone calls these files interleaved (a blank in the first ten characters of
// the second line), but only a sequential reading fits the counts.
TEST(PhylipReader, IndentedContinuationLinesReadSequential) {
  const LoadedFile f = Phylip(
      "2 12\nalpha     ACGTA CGTAC\n          GT\n\nbeta      TTTTT GGGGG\n          CC\n");
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(Row(f, 1), "ACGTACGTACGT");
  EXPECT_EQ(Row(f, 2), "TTTTTGGGGGCC");
}

TEST(PhylipReader, BlankSeparatedCodonsReadSequential) {
  const LoadedFile f = Phylip("2 9\nalpha\nAAG GTC\nTTT\nbeta\nAAG GTA\nTTC\n");
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(Row(f, 1), "AAGGTCTTT");
  EXPECT_EQ(Row(f, 2), "AAGGTATTC");
}

// Where the counts do not fit a sequential reading, the literal verdict stands and the PAML file
// whose names stand alone is read as interleaved, with the refusal that follows.
TEST(PhylipReader, CountsThatDoNotFitKeepTheInterleavedVerdict) {
  EXPECT_EQ(ErrorOf("2 9\nalpha\nAAG GTC TTT\nlonger_name\nAAG GTA TTC\n", kPhylip),
            kPhylipHead + "Invalid character 'L' detected in sequence 1");
}

TEST(PhylipReader, DotInFirstSequenceIsCodeFive) {
  EXPECT_EQ(ErrorOf("2 4\na         AC.T\nb         ACGT\n"),
            kPhylipHead + "The dot '.' character is not allowed in the first sequence");
}

TEST(PhylipReader, InvalidCharacterNamesTheSequence) {
  EXPECT_EQ(ErrorOf("3 4\na         ACGT\nb         ACGT\nc         ACXT\n"),
            kPhylipHead + "Invalid character 'X' detected in sequence 3");
  EXPECT_EQ(ErrorOf("2 4\na         ACGT\nb         ACRT\n"),
            kPhylipHead + "Invalid character 'R' detected in sequence 2\nNOTE: Ovelt does not "
                          "accept DNA ambiguity codes!");
}

TEST(PhylipReader, FirstLineLongerThanTheSitesIsALayoutReport) {
  EXPECT_EQ(ErrorOf("2 4\na         ACGTA\nb         ACGT\n"),
            kPhylipHead + "PHYLIP file format Error !\nInvalid number of sites");
}

TEST(PhylipReader, UnequalLengths) {
  // Sequential: the second runs past the number of sites, or the file ends inside it.
  EXPECT_EQ(ErrorOf("2 4\na         ACGT\nb         ACGTA\n"),
            kPhylipHead + "Sequences are of unequal lengths");
  EXPECT_EQ(ErrorOf("2 4\na         ACGT\nb         AC\n"),
            kPhylipHead + "Sequences are of unequal lengths");
  // Interleaved: the second block leaves one sequence short.
  EXPECT_EQ(ErrorOf("2 6\na         ACG\nb         ACG\nTTT\nTT\n"),
            kPhylipHead + "Sequences are of unequal lengths");
  // Interleaved: every sequence ends alike, short of the number given.
  EXPECT_EQ(ErrorOf("2 8\na         ACG\nb         ACG\nTTT\nTTT\n"),
            kPhylipHead + "Invalid number of sites");
}

TEST(PhylipReader, FewerSequencesThanTheHeaderSaysIsCodeSix) {
  EXPECT_EQ(ErrorOf("3 4\na         ACGT\nb         ACGT\n\n"),
            kPhylipHead + "Invalid number of sequences");
  EXPECT_EQ(ErrorOf("2 4\n"), kPhylipHead + "Invalid number of sequences");
}

TEST(PhylipReader, LinesAfterTheMatrixAreIgnored) {
  const LoadedFile f = Phylip("2 3\na         ACG\nb         ACT\n((a,b));\n");
  EXPECT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 2), "ACT");
}

}  // namespace
}  // namespace ovelt

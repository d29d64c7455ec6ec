// The MEGA reader on hand-made files, in both layouts.

#include <gtest/gtest.h>

#include <string>

#include "formats/read_file.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::ErrorOf;
using testing::kHead;
using testing::Row;

const MegaOptions kSequential{0, '.', '-', '?'};
const MegaOptions kInterleaved{1, '.', '-', '?'};

LoadedFile Mega(const std::string& text, const MegaOptions& options) {
  return ReadDataBuffer(text, "t.txt", kMega, options);
}

TEST(MegaSequential, ReadsLikeFastaWithHash) {
  const LoadedFile f = Mega(
      "#mega\nTITLE: two sequences\n\n#one\nACGT\nAC\n#two\nTT GG\nC.\n", kSequential);
  EXPECT_EQ(f.FileKind, kMega);
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 1), "ACGTAC");
  EXPECT_EQ(Row(f, 2), "TTGGCC");
  EXPECT_EQ(f.Names[2], "two                 ");
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(f.BlockLength, 60);
  EXPECT_TRUE(f.HasMegaSymbols);
}

// A "#" alone opens a first sequence whose name is empty; it is not taken for a header line.
TEST(MegaSequential, AFirstSequenceWithAnEmptyNameIsKept) {
  const LoadedFile f = Mega("#MEGA\n!Title t;\n#\nACGT\n#b\nAC.A\n", kSequential);
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "ACGA");
  EXPECT_EQ(f.Names[1], std::string(20, ' '));
  const LoadedFile interleaved =
      Mega("#MEGA\n# AC\n#b AG\n# GT\n#b GA\n", kInterleaved);
  ASSERT_EQ(interleaved.NumSeqs(), 2);
  EXPECT_EQ(Row(interleaved, 1), "ACGT");
  EXPECT_EQ(Row(interleaved, 2), "AGGA");
}

// Cells that start on the "#name" line are kept, behind the name and a blank.
TEST(MegaSequential, CellsOnTheNameLineAreKept) {
  const LoadedFile f = Mega("#mega\n!Title t;\n#a AAC\n    GGT\n#b AAG GGT\n", kSequential);
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(f.NumSites, 6);
  EXPECT_EQ(Row(f, 1), "AACGGT");
  EXPECT_EQ(Row(f, 2), "AAGGGT");
}

TEST(MegaSequential, QuotedCommentInsideASequenceKeepsTheCount) {
  const LoadedFile f = Mega(
      "#mega\n#a\nACG\"an intron\nover two lines\"T\n#b\nAC\"x\"GT\n", kSequential);
  EXPECT_EQ(f.NumSites, 4);
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "ACGT");
}

// Command statements run from "!" to ";", over lines if need be, and are skipped anywhere.
TEST(MegaSequential, CommandStatementsAreSkipped) {
  const LoadedFile f = Mega(
      "#mega\n!Format DataType=DNA;\n#a\nACGT\n!Domain=Exon1\n  Property=Coding;\nAC\n"
      "#b\nACGT !Label ++++; AC\n",
      kSequential);
  EXPECT_EQ(Row(f, 1), "ACGTAC");
  EXPECT_EQ(Row(f, 2), "ACGTAC");
}

TEST(MegaSequential, UsersSymbolsAreRead) {
  // Matching "i" (a letter, read in either case), gap "~", missing "*"; N still stores "?".
  const LoadedFile f = Mega("#mega\n#a\nAC~*N\n#b\niIG~*\n", MegaOptions{0, 'i', '~', '*'});
  EXPECT_EQ(Row(f, 1), "AC-??");
  EXPECT_EQ(Row(f, 2), "ACG-?");
  EXPECT_EQ(f.MatchSymbol, 'i');
  EXPECT_EQ(f.GapSymbol, '~');
  EXPECT_EQ(f.MissingSymbol, '*');
  // The default symbols are not cells when the user chose others.
  EXPECT_EQ(ErrorOf("#mega\n#a\nAC.G\n", kMega, MegaOptions{0, 'i', '~', '*'}),
            kHead + "Invalid character detected:  '.'");
}

TEST(MegaSequential, ReportsOfTheCellRules) {
  EXPECT_EQ(ErrorOf("#mega\n#a\nA.GT\n", kMega, kSequential),
            kHead + "The character '.' is not allowed in the first sequence");
  EXPECT_EQ(ErrorOf("#mega\n#a\nACGT\n#b\nACG\n", kMega, kSequential),
            kHead + "Sequences are of unequal lengths");
  EXPECT_EQ(ErrorOf("#mega\n#a\nACGT\n#b\nACGTT\n", kMega, kSequential),
            kHead + "Sequences are of unequal lengths");
  EXPECT_EQ(ErrorOf("#mega\n#a\nACWT\n", kMega, kSequential),
            kHead + "Invalid character detected:  'W'\nNOTE: Ovelt does not accept DNA ambiguity codes!");
}

TEST(MegaReader, GeneticDistancesAreCodeThree) {
  const std::string sentence =
      "Bad or unknown file format. Ovelt can not read MEGA Data Files with Genetic Distances "
      "Information.";
  // Declared in the header, even with "#name" rows after it.
  EXPECT_EQ(ErrorOf("#mega\n!Format DataType = distance NTaxa=2;\n#a\n#b\n  0.5\n", kMega,
                    kSequential),
            kHead + sentence);
  // No "#name" row at all.
  EXPECT_EQ(ErrorOf("#mega\n!Title d;\n[1] #a\n[2] #b\n", kMega, kSequential), kHead + sentence);
}

TEST(MegaInterleaved, ReadsBlocks) {
  const LoadedFile f = Mega(
      "#MEGA\n!Title t;\n\n#a ACG TA\n#b ..C .T\n#c T.. ..\n\n#a GG\n#b .C\n#c -?\n", kInterleaved);
  ASSERT_EQ(f.NumSeqs(), 3);
  EXPECT_EQ(f.NumSites, 7);
  EXPECT_EQ(Row(f, 1), "ACGTAGG");
  EXPECT_EQ(Row(f, 2), "ACCTTGC");
  EXPECT_EQ(Row(f, 3), "TCGTA-?");
  EXPECT_EQ(f.Interleaved, 1);
  EXPECT_EQ(f.BlockLength, 5);
}

TEST(MegaInterleaved, MisspelledNameInTheSecondBlockIsReport31) {
  EXPECT_EQ(ErrorOf("#mega\n#alpha AC\n#beta AC\n#alpha GT\n#betta GT\n", kMega, kInterleaved),
            kHead + "Illegal sequence name (interleaved format).");
}

TEST(MegaInterleaved, RowOfAnotherLengthIsReport30) {
  EXPECT_EQ(ErrorOf("#mega\n#a ACG\n#b AC\n", kMega, kInterleaved),
            kHead + "Blocks of sequences (interleaved format) are of unequal lengths.");
  EXPECT_EQ(ErrorOf("#mega\n#a AC\n#b AC\n#a GTT\n#b GT\n", kMega, kInterleaved),
            kHead + "Blocks of sequences (interleaved format) are of unequal lengths.");
  // A last block that lacks a row.
  EXPECT_EQ(ErrorOf("#mega\n#a AC\n#b AC\n#a GT\n", kMega, kInterleaved),
            kHead + "Blocks of sequences (interleaved format) are of unequal lengths.");
}

TEST(MegaInterleaved, LastBlockMayBeShorter) {
  const LoadedFile f = Mega("#mega\n#a ACGT\n#b ACGA\n#a T\n#b C\n", kInterleaved);
  EXPECT_EQ(Row(f, 1), "ACGTT");
  EXPECT_EQ(Row(f, 2), "ACGAC");
  EXPECT_EQ(f.BlockLength, 4);
}

TEST(MegaInterleaved, CommandLinesBetweenBlocksAreSkipped) {
  const LoadedFile f = Mega(
      "#mega\n!Domain=One Property=Coding;\n#a AAA CCC\n#b AAA CCG\n!Label +++ ___;\n\n"
      "!Domain=Two\n Property=Noncoding;\n#a GG\n#b GT\n",
      kInterleaved);
  EXPECT_EQ(Row(f, 1), "AAACCCGG");
  EXPECT_EQ(Row(f, 2), "AAACCGGT");
}

TEST(MegaInterleaved, QuotedCommentKeepsTheCount) {
  const LoadedFile f = Mega("#mega\n#a AC \"ten\" GT\n#b AC \"x y\" GA\n", kInterleaved);
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "ACGA");
}

TEST(MegaInterleaved, CellsOutsideARowAreReport31) {
  EXPECT_EQ(ErrorOf("#mega\n#a AC\n   GT\n#b ACGT\n", kMega, kInterleaved),
            kHead + "Illegal sequence name (interleaved format).");
}

TEST(MegaInterleaved, MoreThan32767SequencesSayTheLimit) {
  std::string text = "#mega\n";
  for (int s = 1; s <= 32767; ++s) text += "#s" + std::to_string(s) + " A\n";
  EXPECT_EQ(Mega(text, kInterleaved).NumSeqs(), 32767);
  text += "#s32768 A\n";
  EXPECT_EQ(ErrorOf(text, kMega, kInterleaved),
            kHead + "The file holds more than 32767 sequences. The maximum number of sequences is "
                    "32767.");
}

TEST(MegaInterleaved, DotInFirstSequenceIsCodeZero) {
  EXPECT_EQ(ErrorOf("#mega\n#a A.\n#b AC\n", kMega, kInterleaved),
            kHead + "The character '.' is not allowed in the first sequence");
}

}  // namespace
}  // namespace ovelt

// The FASTA reader on hand-made files; each expected matrix is written out by hand.

#include <gtest/gtest.h>

#include <string>

#include "formats/read_file.h"
#include "formats/read_messages.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::ErrorOf;
using testing::kHead;
using testing::Row;

LoadedFile Fasta(const std::string& text) { return ReadDataBuffer(text, "t.txt", kFasta); }

TEST(FastaReader, ReadsNamesAndCells) {
  const LoadedFile f = Fasta(">one\nACGT\nAC\n>two\nTTGGCA\n");
  EXPECT_EQ(f.FileKind, kFasta);
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(f.NumSites, 6);
  EXPECT_EQ(Row(f, 1), "ACGTAC");
  EXPECT_EQ(Row(f, 2), "TTGGCA");
  EXPECT_EQ(f.Names[0], "");
  EXPECT_EQ(f.Names[1], "one                 ");
  EXPECT_EQ(f.Names[2], "two                 ");
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(f.BlockLength, 60);
}

TEST(FastaReader, NameOfTwentyFiveCharactersIsCutToTwenty) {
  const LoadedFile f = Fasta(">abcdefghijklmnopqrstuvwxy\nACGT\n");
  EXPECT_EQ(f.Names[1], "abcdefghijklmnopqrst");
}

TEST(FastaReader, NamesCutToTwentyMayBecomeEqualAndStaySo) {
  const LoadedFile f = Fasta(">sample_2020_05_20_Paris\nAC\n>sample_2020_05_20_Lyon\nAG\n");
  EXPECT_EQ(f.Names[1], "sample_2020_05_20_Pa");
  EXPECT_EQ(f.Names[2], "sample_2020_05_20_Ly");
  const LoadedFile g = Fasta(">pathogen_sample_2020a\nAC\n>pathogen_sample_2020b\nAG\n");
  EXPECT_EQ(g.Names[1], "pathogen_sample_2020");
  EXPECT_EQ(g.Names[2], g.Names[1]);
}

TEST(FastaReader, OneSequenceLoads) {
  const LoadedFile f = Fasta(">only\nACGT\n");
  EXPECT_EQ(f.NumSeqs(), 1);
  EXPECT_EQ(Row(f, 1), "ACGT");
}

TEST(FastaReader, RestOfHeaderAfterFirstBlankIsLost) {
  const LoadedFile f = Fasta(">  \tseq1 Homo sapiens, mitochondrion\nACGT\n");
  EXPECT_EQ(f.Names[1], "seq1                ");
}

TEST(FastaReader, EmptyFirstSequenceGivesZeroSites) {
  const LoadedFile f = Fasta(">a\n>b\n\n>c\n");
  EXPECT_EQ(f.NumSeqs(), 3);
  EXPECT_EQ(f.NumSites, 0);
  EXPECT_EQ(f.Matrix.sites(), 0);
  // With no sites in the first, any cell of a later sequence makes them unequal.
  EXPECT_EQ(ErrorOf(">a\n>b\nA\n", kFasta), kHead + "Sequences are of unequal lengths");
}

TEST(FastaReader, DotCopiesGapAndMissingOfTheFirstSequence) {
  const LoadedFile f = Fasta(">a\nA-?N\n>b\n....\n>c\nT.G.\n");
  EXPECT_EQ(Row(f, 1), "A-??");
  EXPECT_EQ(Row(f, 2), "A-??");
  EXPECT_EQ(Row(f, 3), "T-G?");
}

TEST(FastaReader, LowerCaseUAndNReadAsTAndMissing) {
  const LoadedFile f = Fasta(">a\nacgun\n>b\nACGUN\n");
  EXPECT_EQ(Row(f, 1), "ACGT?");
  EXPECT_EQ(Row(f, 2), "ACGT?");
}

TEST(FastaReader, BlanksAndTabsAreSkipped) {
  const LoadedFile f = Fasta(">a\nAC GT\tA\n  C\n");
  EXPECT_EQ(Row(f, 1), "ACGTAC");
}

TEST(FastaReader, SecondSequenceOneLongerIsUnequalLengths) {
  EXPECT_EQ(ErrorOf(">a\nACGT\n>b\nACGTA\n", kFasta), kHead + "Sequences are of unequal lengths");
}

TEST(FastaReader, SecondSequenceOneShorterIsUnequalLengths) {
  EXPECT_EQ(ErrorOf(">a\nACGT\n>b\nACG\n>c\nACGT\n", kFasta),
            kHead + "Sequences are of unequal lengths");
}

TEST(FastaReader, DotInFirstSequenceIsCodeZero) {
  EXPECT_EQ(ErrorOf(">a\nAC.T\n>b\nACGT\n", kFasta),
            kHead + "The character '.' is not allowed in the first sequence");
}

TEST(FastaReader, InvalidCharacterIsReportedInUpperCase) {
  EXPECT_EQ(ErrorOf(">a\nACGT\n>b\nACxT\n", kFasta), kHead + "Invalid character detected:  'X'");
  EXPECT_EQ(ErrorOf(">a\nAC*T\n", kFasta), kHead + "Invalid character detected:  '*'");
}

TEST(FastaReader, EachAmbiguityLetterAddsTheNote) {
  for (char letter : std::string("MRWSYKmrwsyk")) {
    const char upper = static_cast<char>(letter >= 'a' ? letter - 'a' + 'A' : letter);
    EXPECT_EQ(ErrorOf(std::string(">a\nAC") + letter + "T\n", kFasta),
              kHead + "Invalid character detected:  '" + upper +
                  "'\nNOTE: Ovelt does not accept DNA ambiguity codes!")
        << letter;
  }
  // Other IUPAC letters are refused without the note.
  for (char letter : std::string("BDHV")) {
    EXPECT_EQ(ErrorOf(std::string(">a\nAC") + letter + "T\n", kFasta),
              kHead + "Invalid character detected:  '" + letter + "'");
  }
}

TEST(FastaReader, HeaderInsideALineStartsTheNextSequence) {
  // The ">" ends the walk; the text from it on is the next header.
  const LoadedFile f = Fasta(">a\nACGT>b second\nTTTT\n");
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "TTTT");
  EXPECT_EQ(f.Names[2], "b                   ");
}

TEST(FastaReader, LineEndsOfAllKindsGiveEqualMatrices) {
  const std::string lf = ">s1 first\nACGTN\nAC-?\n\n>s2\nAC.TT\nUC-A\n>s3\n.........\n";
  std::string crlf, cr, mixed;
  int k = 0;
  for (char c : lf) {
    crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    cr += c == '\n' ? '\r' : c;
    mixed += c == '\n' ? std::string(k++ % 2 ? "\r" : "\r\n") : std::string(1, c);
  }
  const LoadedFile a = Fasta(lf), b = Fasta(crlf), c = Fasta(cr), d = Fasta(mixed);
  ASSERT_EQ(a.NumSeqs(), 3);
  ASSERT_EQ(a.NumSites, 9);
  EXPECT_EQ(Row(a, 1), "ACGT?AC-?");
  EXPECT_EQ(Row(a, 2), "ACGTTTC-A");
  EXPECT_EQ(Row(a, 3), "ACGT?AC-?");
  for (const LoadedFile* other : {&b, &c, &d}) {
    ASSERT_EQ(other->NumSeqs(), 3);
    for (int s = 1; s <= 3; ++s) EXPECT_EQ(Row(*other, s), Row(a, s));
    EXPECT_EQ(other->Names, a.Names);
  }
}

TEST(FastaReader, MoreThan32767SequencesSayTheLimit) {
  std::string text;
  for (int s = 0; s < 32767; ++s) text += ">s\nA\n";
  EXPECT_EQ(Fasta(text).NumSeqs(), 32767);
  text += ">s\nA\n";
  EXPECT_EQ(ErrorOf(text, kFasta),
            kHead + "The file holds more than 32767 sequences. The maximum number of sequences is "
                    "32767.");
}

TEST(FastaReader, LongSequenceOnOneLine) {
  // Longer than the first buffer, so the first sequence's buffer has to grow.
  std::string cells;
  for (int i = 0; i < 50000; ++i) cells += "ACGT"[i % 4];
  const LoadedFile f = Fasta(">a\n" + cells + "\n>b\n" + cells + "\n");
  EXPECT_EQ(f.NumSites, 50000);
  EXPECT_EQ(Row(f, 2), cells);
}

}  // namespace
}  // namespace ovelt

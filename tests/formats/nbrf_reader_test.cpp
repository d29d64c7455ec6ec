// The NBRF/PIR reader on hand-made files.

#include <gtest/gtest.h>

#include <string>

#include "formats/read_file.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::ErrorOf;
using testing::kHead;
using testing::Row;

TEST(NbrfReader, LowerCaseHeaderIsNbrf) {
  EXPECT_EQ(DetectFileKind(">dl;x"), kNbrf);
  const LoadedFile f = ReadDataBuffer(">dl;alpha\ntitle line\nACGT*\n", "t.txt");
  EXPECT_EQ(f.FileKind, kNbrf);
  EXPECT_EQ(f.Names[1], "alpha               ");
  EXPECT_EQ(Row(f, 1), "ACGT");
}

TEST(NbrfReader, TitleLineIsSkippedAndStarEndsTheSequence) {
  // The title would be refused as cells; everything after "*" up to the next ">" is skipped.
  const LoadedFile f = ReadDataBuffer(
      ">DL;first\nHuman DNA, 8 bases\nACGT ACGT\n*\nnot read at all\n"
      ">DL;second\nMouse\nAC-T\nAC?N* ignored\nignored too\n",
      "t.txt");
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(f.NumSites, 8);
  EXPECT_EQ(Row(f, 1), "ACGTACGT");
  EXPECT_EQ(Row(f, 2), "AC-TAC??");
  EXPECT_EQ(f.Interleaved, 0);
}

TEST(NbrfReader, NameRunsToTheFirstBlankAndATabCountsAsBlank) {
  const LoadedFile f =
      ReadDataBuffer(">DL;seqA more words\nt\nAC*\n>DL;seqB\tx\nt\nGT*\n", "t.txt");
  EXPECT_EQ(f.Names[1], "seqA                ");
  EXPECT_EQ(f.Names[2], "seqB                ");
}

TEST(NbrfReader, EndOfFileEndsASequenceWithoutStar) {
  const LoadedFile f = ReadDataBuffer(">DL;a\nt\nACGT\n>DL;b\nt\nTGCA", "t.txt");
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(Row(f, 2), "TGCA");
}

TEST(NbrfReader, DotCopiesTheFirstSequence) {
  const LoadedFile f = ReadDataBuffer(">DL;a\nt\nA-?T*\n>DL;b\nt\n..G.*\n", "t.txt");
  EXPECT_EQ(Row(f, 2), "A-GT");
}

TEST(NbrfReader, ReportsAreThoseOfTheCellRules) {
  EXPECT_EQ(ErrorOf(">DL;a\nt\nA.GT*\n"), kHead + "The character '.' is not allowed in the first sequence");
  EXPECT_EQ(ErrorOf(">DL;a\nt\nACGT*\n>DL;b\nt\nACGTA*\n"), kHead + "Sequences are of unequal lengths");
  EXPECT_EQ(ErrorOf(">DL;a\nt\nACGT*\n>DL;b\nt\nACG*\n"), kHead + "Sequences are of unequal lengths");
  EXPECT_EQ(ErrorOf(">DL;a\nt\nACYT*\n"),
            kHead + "Invalid character detected:  'Y'\nNOTE: Ovelt does not accept DNA ambiguity codes!");
}

TEST(NbrfReader, OnlyDLSelectsNbrf) {
  // ">D1;" is FASTA: its title line is read as cells.
  EXPECT_EQ(DetectFileKind(">D1;x"), kFasta);
  EXPECT_EQ(ErrorOf(">D1;x\nGENBANK\nACGT*\n"), kHead + "Invalid character detected:  'E'");
}

}  // namespace
}  // namespace ovelt

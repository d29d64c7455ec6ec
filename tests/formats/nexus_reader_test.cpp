// The NEXUS reader: blocks, FORMAT keys, matrices and the faults of each.

#include <gtest/gtest.h>

#include <string>

#include "formats/nexus_errors.h"
#include "nexus_test_support.h"

namespace ovelt {
namespace {

using testing::NexusFaultOf;
using testing::ReadNexusString;
using testing::Row;
using testing::TwoByFour;

TEST(NexusReader, LowerCaseBlocksAndCellRules) {
  const LoadedFile f = ReadNexusString(
      "#nexus\nbegin data;\ndimensions ntax=3 nchar=6;\n"
      "format datatype=dna missing=* gap=~ matchchar=.;\nmatrix\n"
      "first acgtun\nsecond ..~*?-\nthird A.G.T.\n;\nend;\n");
  ASSERT_EQ(f.NumSeqs(), 3);
  EXPECT_EQ(f.FileKind, kNexus);
  EXPECT_EQ(Row(f, 1), "ACGTT?");
  EXPECT_EQ(Row(f, 2), "AC-?" "?-");  // "." copies the first row; "~" is the gap, "*" missing
  EXPECT_EQ(Row(f, 3), "ACGTT?");
  EXPECT_EQ(f.Names[2], "second              ");
  ASSERT_TRUE(f.Nexus.has_value());
  const FormatAttributes& format = f.Nexus->Format;
  EXPECT_EQ(format.GapSymbol, '~');
  EXPECT_EQ(format.MissingSymbol, '*');
  EXPECT_EQ(format.MatchSymbolOn, 1);
  EXPECT_EQ(format.MatchSymbol, '.');
  EXPECT_EQ(format.Interleaved, 0);
  EXPECT_EQ(format.BlockLength, 60);
  EXPECT_EQ(format.NexusVersion, 1);
  EXPECT_EQ(format.GeneticCodeIndex, 0);  // no code named: reads as 1
  EXPECT_EQ(format.CodingAssigned, -1);
}

TEST(NexusReader, DefaultsWithoutFormatKeys) {
  const LoadedFile f = ReadNexusString(TwoByFour());
  const FormatAttributes& format = f.Nexus->Format;
  EXPECT_EQ(format.GapSymbol, '-');
  EXPECT_EQ(format.MissingSymbol, '?');
  EXPECT_EQ(format.MatchSymbolOn, 0);
  EXPECT_EQ(format.NucleotideType, 0);
  EXPECT_EQ(f.Nexus->CodonPosition, std::vector<int16_t>(5, 0));
}

// A declared size the file cannot hold is refused before anything is sized by it: NTAX rows of
// NCHAR cells need NTAX x NCHAR bytes of matrix. Sized first, 2^31 - 1 characters (and their
// labels) would ask for tens of gigabytes and end as "Out of memory".
TEST(NexusReader, ADeclaredSizeTheFileCannotHoldIsRefusedAtOnce) {
  EXPECT_EQ(NexusFaultOf("#NEXUS\nbegin data;\n dimensions ntax=2 nchar=300000000;\n matrix\n"
                         " a ACGT\n b ACGT\n ;\nend;\n"),
            "Missing character in sequence: 1");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nbegin data;\n dimensions ntax=2 nchar=2147483647;\n"
                         " charlabels x y;\n matrix\n a ACGT\n b ACGT\n ;\nend;\n"),
            "Missing character in sequence: 1");
  // The rows that fit are counted: the third of three cannot be complete.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nbegin data;\n dimensions ntax=3 nchar=12;\n matrix\n"
                         " a ACGTACGTACGT\n b ACGTACGTACGT\n ;\nend;\n"),
            "Missing character in sequence: 3");
  // Without a matrix nothing is sized either.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nbegin data;\n dimensions ntax=2 nchar=2147483647;\n"
                         " charlabels x y;\nend;\n"),
            "Error Reading the DATA block");
}

TEST(NexusReader, RnaAndNucleotideDataTypes) {
  const LoadedFile rna = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=3;\nFORMAT DATATYPE=RNA;\nMATRIX\na ACU\n;\nEND;\n");
  EXPECT_EQ(Row(rna, 1), "ACT");
  EXPECT_EQ(rna.Nexus->Format.NucleotideType, 1);
  // DATATYPE=NUCLEOTIDE, which jModelTest writes, reads as DNA.
  const LoadedFile nucleotide = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=3;\nFORMAT DATATYPE = nucleotide;\n"
      "MATRIX\na ACG\n;\nEND;\n");
  EXPECT_EQ(Row(nucleotide, 1), "ACG");
  EXPECT_EQ(nucleotide.Nexus->Format.NucleotideType, 0);
}

TEST(NexusReader, ProteinDataIsRefused) {
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=3;\n"
                         "FORMAT DATATYPE=PROTEIN;\nMATRIX\na MKV\n;\nEND;\n"),
            "Ovelt can not read NEXUS files with PROTEIN sequence data");
}

TEST(NexusReader, CommentsStandAnywhere) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS [after the token]\n[before [nested] the block]\nBEGIN [x] DATA;\n"
      "DIMENSIONS [n] NTAX=2 NCHAR=4;\nMATRIX\n[ruler 1 2 3 4]\none AC[inside]GT [behind]\n"
      "[between rows]\ntwo [before cells] ACGA\n;\nEND;\n");
  EXPECT_EQ(Row(f, 1), "ACGT");
  EXPECT_EQ(Row(f, 2), "ACGA");
}

TEST(NexusReader, QuotedNamesAndUnderscores) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=3 NCHAR=2;\nMATRIX\n'Homo sapiens' AC\n"
      "Pan_troglodytes AC\n'it''s [not] a comment' AC\n;\nEND;\n");
  EXPECT_EQ(f.Names[1], "Homo sapiens        ");
  EXPECT_EQ(f.Names[2], "Pan troglodytes     ");  // an unquoted underscore is a blank
  EXPECT_EQ(f.Names[3], "it's [not] a comment");
}

TEST(NexusReader, NamesThatReadAlikeStayTwoTaxa) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\nMATRIX\n'a b' AC\na_b GT\n;\nEND;\n");
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(f.Names[1], f.Names[2]);
  EXPECT_EQ(Row(f, 2), "GT");
}

TEST(NexusReader, InterleavedMatrix) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=6;\nFORMAT INTERLEAVE MISSING=?;\nMATRIX\n"
      "one ACG\ntwo AC-\n\none TTA\ntwo TTG\n;\nEND;\n");
  EXPECT_EQ(Row(f, 1), "ACGTTA");
  EXPECT_EQ(Row(f, 2), "AC-TTG");
  EXPECT_EQ(f.Interleaved, 1);
  EXPECT_EQ(f.Nexus->Format.Interleaved, 1);
  // INTERLEAVE=NO is sequential.
  const LoadedFile g = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=2;\nFORMAT INTERLEAVE=no;\nMATRIX\na AC\n;\nEND;\n");
  EXPECT_EQ(g.Interleaved, 0);
}

// The NEXUS standard ends a row after NCHAR cells, wherever the lines break (SeaView).
TEST(NexusReader, SequentialRowsMayRunOverSeveralLines) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=6;\nMATRIX\n[1] one\nACG\nTTA\n"
      "[2] two\nAC\n-TTG\n;\nEND;\n");
  EXPECT_EQ(Row(f, 1), "ACGTTA");
  EXPECT_EQ(Row(f, 2), "AC-TTG");
  EXPECT_EQ(f.Interleaved, 0);
}

// Blocks of rows without INTERLEAVE, later blocks without names (PhyML).
TEST(NexusReader, UndeclaredBlocksReadAsInterleaved) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=6;\nFORMAT DATATYPE=DNA;\nMATRIX\n"
      "seq1 ACG\nseq2 AC-\n\nTTA\nTTG\n;\nEND;\n");
  EXPECT_EQ(Row(f, 1), "ACGTTA");
  EXPECT_EQ(Row(f, 2), "AC-TTG");
  EXPECT_EQ(f.Interleaved, 1);
}

TEST(NexusReader, TaxaAndCharactersBlocks) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\nBEGIN TAXA;\nDIMENSIONS NTAX=3;\nTAXLABELS alpha 'beta gamma' delta;\nEND;\n"
      "BEGIN CHARACTERS;\nDIMENSIONS NCHAR=2;\nFORMAT DATATYPE=DNA;\nMATRIX\n"
      "delta GG\nalpha AA\n'beta gamma' CC\n;\nEND;\n");
  ASSERT_EQ(f.NumSeqs(), 3);
  // Rows named by the labels in another order take the labels' places.
  EXPECT_EQ(f.Names[1], "alpha               ");
  EXPECT_EQ(Row(f, 1), "AA");
  EXPECT_EQ(f.Names[2], "beta gamma          ");
  EXPECT_EQ(Row(f, 2), "CC");
  EXPECT_EQ(Row(f, 3), "GG");
  EXPECT_EQ(f.Nexus->Format.NexusVersion, 2);
}

TEST(NexusReader, TheDnaCharactersBlockAndTheTaxaItLinks) {
  const std::string text =
      "#NEXUS\nBEGIN TAXA;\nTITLE first;\nDIMENSIONS NTAX=1;\nTAXLABELS a;\nEND;\n"
      "BEGIN TAXA;\nTITLE second;\nDIMENSIONS NTAX=2;\nTAXLABELS b c;\nEND;\n"
      "BEGIN CHARACTERS;\nTITLE morph;\nLINK TAXA = first;\nDIMENSIONS NCHAR=2;\n"
      "FORMAT DATATYPE=STANDARD;\nMATRIX\na 01\n;\nEND;\n"
      "BEGIN CHARACTERS;\nTITLE dna;\nLINK TAXA = second;\nDIMENSIONS NCHAR=3;\n"
      "FORMAT DATATYPE=DNA;\nMATRIX\nb ACG\nc ACT\n;\nEND;\n";
  const LoadedFile f = ReadNexusString(text);
  ASSERT_EQ(f.NumSeqs(), 2);
  EXPECT_EQ(f.Names[2], "c                   ");
  EXPECT_EQ(Row(f, 2), "ACT");
  const std::vector<NexusBlock>& blocks = f.Nexus->Document.Blocks;
  ASSERT_EQ(blocks.size(), 4u);
  EXPECT_FALSE(blocks[0].Read);
  EXPECT_TRUE(blocks[1].Read);
  EXPECT_FALSE(blocks[2].Read);
  EXPECT_TRUE(blocks[3].Read);
  EXPECT_EQ(blocks[3].KeptStatements,
            (std::vector<std::string>{"TITLE dna;", "LINK TAXA = second;"}));
  // A link to a TAXA block that is not there.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN CHARACTERS;\nLINK TAXA = gone;\nDIMENSIONS NTAX=1 "
                         "NCHAR=1;\nMATRIX\na A\n;\nEND;\n"),
            "Error Reading the CHARACTERS block");
}

TEST(NexusReader, StandardDataOfOneBlockIsRefusedByItsCells) {
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=2;\n"
                         "FORMAT DATATYPE=STANDARD;\nMATRIX\na 01\n;\nEND;\n"),
            "Invalid character detected in sequence: 1\nCharacter: 0");
}

TEST(NexusReader, EveryFaultHasItsSentence) {
  const std::string matrix = "MATRIX\na AC\nb AC\n;\nEND;\n";
  // 1: the first token.
  EXPECT_EQ(NexusFaultOf("#NEXUSX\n"), "Error Reading the #NEXUS token");
  // 2 and 3: the dimensions.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NCHAR=2;\n" + matrix),
            "Error Reading the NTAX command");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=0 NCHAR=2;\n" + matrix),
            "Error Reading the NTAX command");
  // More than the program holds says the limit.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=40000 NCHAR=2;\n" + matrix),
            "The file declares 40000 sequences. The maximum number of sequences is 32767.");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=0099999999999999999999;\n" +
                         matrix),
            "The file declares 99999999999999999999 sites. The maximum number of sites is "
            "2147483647.");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=two;\n" + matrix),
            "Error Reading the NCHAR command");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2;\n" + matrix),
            "Error Reading the NCHAR command");
  // 4: the matching symbol in the first sequence, at its site.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=3;\nFORMAT MATCHCHAR=.;\n"
                         "MATRIX\na AC.\n;\nEND;\n"),
            "Invalid character detected at position: 3");
  // 6: a character label out of range.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\n"
                         "CHARLABELS 1 x, 3 y;\n" + matrix),
            "Error Reading the CHARLABELS command");
  // 19: a FORMAT key without its value.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\nFORMAT GAP=;\n" + matrix),
            "Error Reading the FORMAT command");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\nFORMAT TRANSPOSE;\n" +
                         matrix),
            "Error Reading the FORMAT command");
  // 64 and 65: the cells.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\nMATRIX\na AC\nb AX\n;\n"
                         "END;\n"),
            "Invalid character detected in sequence: 2\nCharacter: X");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=3;\nMATRIX\na ACG\nb AC\n;\n"
                         "END;\n"),
            "Missing character in sequence: 2");
  // A row short on its line, followed by the next row's name.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=3;\nMATRIX\na AC\nb ACG\n;\n"
                         "END;\n"),
            "Missing character in sequence: 1");
  // 71, 72, 73: the blocks.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=2;\nEND;\n"),
            "Error Reading the DATA block");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=2;\nMATRIX\na AC\nb AC\n;\n"
                         "END;\n"),
            "Error Reading the DATA block");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN TAXA;\nDIMENSIONS NTAX=2;\nTAXLABELS a;\nEND;\n"
                         "BEGIN CHARACTERS;\nDIMENSIONS NCHAR=1;\nMATRIX\na A\nb A\n;\nEND;\n"),
            "Error Reading the TAXA block");
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN CHARACTERS;\nDIMENSIONS NTAX=1 NCHAR=2;\nEND;\n"),
            "Error Reading the CHARACTERS block");
  // Any other: no matrix block at all.
  EXPECT_EQ(NexusFaultOf("#NEXUS\nBEGIN SETS;\nCHARSET a = 1-3;\nEND;\n"),
            "Invalid or Erroneous Nexus File");
}

TEST(NexusReader, SentencesOfEveryCode) {
  EXPECT_EQ(NexusErrorSentence(0), "Error Reading Nexus File");
  EXPECT_EQ(NexusErrorSentence(5), "Error Reading the CODONS block");
  EXPECT_EQ(NexusErrorSentence(9), "Ovelt can not read NEXUS files with PROTEIN sequence data");
  EXPECT_EQ(NexusErrorSentence(31), "Error Reading the SETS block");
  EXPECT_EQ(NexusErrorSentence(32), "Error in the sequence number in TAXSET command of SETS block");
  EXPECT_EQ(NexusErrorSentence(33),
            "Ovelt does not accept the VECTOR format in the TAXSET or CHARSET command of SETS "
            "block");
  EXPECT_EQ(NexusErrorSentence(34), "Error in the position number in CHARSET command of SETS block");
  EXPECT_EQ(NexusErrorSentence(64, 7, 'Q'), "Invalid character detected in sequence: 7\nCharacter: Q");
  EXPECT_EQ(NexusErrorSentence(65, 3), "Missing character in sequence: 3");
  EXPECT_EQ(NexusErrorSentence(71), "Error Reading the DATA block");
  EXPECT_EQ(NexusErrorSentence(72), "Error Reading the TAXA block");
  EXPECT_EQ(NexusErrorSentence(73), "Error Reading the CHARACTERS block");
  EXPECT_EQ(NexusErrorSentence(12), "Invalid or Erroneous Nexus File");
}

TEST(NexusReader, TheWholeBoxOfAFault) {
  EXPECT_EQ(testing::ErrorOf("#NEXUS\n", kNexus),
            "        Data File Error !\n\nInput data file: t.txt\n\nInvalid or Erroneous Nexus File");
}

// Labels too big to keep warn, and the file still loads.
TEST(NexusReader, LabelsTooBigWarnWithoutStopping) {
  std::string labels = "CHARLABELS";
  for (int i = 0; i < 4000; ++i) labels += " label_" + std::to_string(i);
  const LoadedFile f = ReadNexusString("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=4000;\n" +
                                       labels + ";\nMATRIX\na " + std::string(4000, 'A') +
                                       "\n;\nEND;\n");
  EXPECT_EQ(f.NumSites, 4000);
  EXPECT_EQ(f.Nexus->Warnings,
            std::vector<std::string>{
                "Information in CHARSTATELABELS or CHARLABELS or STATELABELS commands is too big. "
                "Be careful!!! This information will be lost if you try to save the present data "
                "file as a NEXUS file."});
  EXPECT_TRUE(f.Nexus->Document.Blocks[0].KeptStatements.empty());
  // Small labels are kept for the writer.
  const LoadedFile g = ReadNexusString("#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=1 NCHAR=2;\n"
                                       "CHARLABELS x y;\nMATRIX\na AC\n;\nEND;\n");
  EXPECT_TRUE(g.Nexus->Warnings.empty());
  EXPECT_EQ(g.Nexus->Document.Blocks[0].KeptStatements,
            std::vector<std::string>{"CHARLABELS x y;"});
}

}  // namespace
}  // namespace ovelt

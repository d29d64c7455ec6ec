// "Update NEXUS Data File": the recorded shape of the file that was read (block order, unknown
// blocks, comments) is kept, the blocks of the data are written anew in their places, and
// blocks the file lacked follow its last block.

#include <gtest/gtest.h>

#include "core/coding_regions.h"
#include "formats/nexus_writer.h"
#include "formats/update_nexus.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "support/write_faults.h"
#include "writer_test_support.h"

namespace ovelt {
namespace {

using testing::kStamp;
using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;
using testing::Written;

const std::string kTrees = "BEGIN TREES;\n\tTREE t1 = (one,(two,three));\nEnd;";

ActiveData NexusData() {
  ActiveData ad = test::MakeAlignment({"ACGTAC", "ACGAAC", "TCGTAC"}, {"one", "two", "three"});
  ad.FileKind = kNexus;
  ad.FileName = "sample.nex";
  ad.Format.Interleaved = 0;
  ad.Format.MatchSymbolOn = 0;
  return ad;
}

NexusBlock Block(NexusBlockKind kind, const std::string& leading, const std::string& text,
                 bool read, std::vector<std::string> kept = {}) {
  NexusBlock block;
  block.Kind = kind;
  block.Leading = leading;
  block.Text = text;
  block.Read = read;
  block.KeptStatements = std::move(kept);
  return block;
}

// A file as the reader records it: TAXA and CHARACTERS with a comment before each, a TREES
// block, a SETS block with a statement it keeps, and a line end after the last END.
NexusDocument Recorded() {
  NexusDocument doc;
  doc.Blocks.push_back(Block(NexusBlockKind::kTaxa, "\n[first comment]\n",
                             "begin taxa;\n dimensions ntax=3;\n taxlabels one two three;\nend;",
                             true));
  doc.Blocks.push_back(Block(NexusBlockKind::kCharacters, "\n\n[the matrix]\n",
                             "BEGIN CHARACTERS; old text END;", true));
  doc.Blocks.push_back(Block(NexusBlockKind::kOther, "\n\n", kTrees, false));
  doc.Blocks.push_back(Block(NexusBlockKind::kSets, "\n", "BEGIN SETS; TaxSet Old = 1; END;", true,
                             {"CHARPARTITION Genes = 1:1-3, 2:4-6;"}));
  doc.Trailing = "\n[end of file]\n";
  return doc;
}

std::string Updated(const ActiveData& ad, const NexusDocument& doc,
                    const std::vector<std::string>& codon_usage = {}) {
  return Written([&](WriterLines& out) { WriteNexusUpdate(ad, doc, kStamp, codon_usage, out); },
                 "\n");
}

TEST(UpdateNexus, KeepsOrderUnknownBlocksAndCommentsAndRewritesTheDataBlocks) {
  ActiveData ad = NexusData();
  test::AddSet(ad, "PopA", {1, 3});
  const std::string expected =
      "#NEXUS\n[first comment]\n"
      "BEGIN TAXA;\nDIMENSIONS NTAX=3;\nTAXLABELS\none\ntwo\nthree;\nEND;"
      "\n\n[the matrix]\n"
      "BEGIN CHARACTERS;\nDIMENSIONS NCHAR=6;\nFORMAT DATATYPE=DNA  MISSING=? GAP=-;\nMATRIX\n"
      "one    ACGTAC\ntwo    ACGAAC\nthree  TCGTAC\n;\nEND;"
      "\n\n" +
      kTrees +
      "\n"
      "BEGIN SETS;\n   TaxSet PopA = 1 3;\nCHARPARTITION Genes = 1:1-3, 2:4-6;\nEND;"
      "\n"
      "BEGIN Ovelt;\n   Genome= Diploid;\n   ChromosomalLocation= Autosome;\n"
      "   Oveltversion= Ver. 4.00.5;\nEND;"
      "\n[end of file]\n";
  EXPECT_EQ(Updated(ad, Recorded()), expected);
}

TEST(UpdateNexus, AnUnknownBlockStaysByteForByteWithTheFileLineEnds) {
  const ActiveData ad = NexusData();
  std::ostringstream text;
  WriterLines out(text, "\r\n");
  WriteNexusUpdate(ad, Recorded(), kStamp, {}, out);
  std::string trees_crlf;
  for (char c : kTrees) trees_crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  const std::string written = text.str();
  const size_t at = written.find(trees_crlf);
  ASSERT_NE(at, std::string::npos) << written;
  // In its place: after the matrix, before the sets.
  EXPECT_LT(written.find("MATRIX"), at);
  EXPECT_GT(written.find("BEGIN SETS;"), at);
}

TEST(UpdateNexus, OwnAndCodonUsageBlocksAreWrittenAnewInTheirPlaces) {
  ActiveData ad = NexusData();
  ad.Format.GenomeState = 1;
  NexusDocument doc;
  doc.Blocks.push_back(Block(NexusBlockKind::kData, "\n", "BEGIN DATA; x END;", true));
  doc.Blocks.push_back(
      Block(NexusBlockKind::kCodonUsage, "\n", "BEGIN CODONUSAGE; old END;", true));
  doc.Blocks.push_back(
      Block(NexusBlockKind::kOwn, "\n", "BEGIN OVELT; Genome=Diploid; END;", true));
  doc.Trailing = "\n";
  const std::string text = Updated(ad, doc, {"BEGIN CODONUSAGE;", "    new", "END;"});
  const size_t usage =
      text.find("BEGIN CODONUSAGE;\n    new\nEND;\nBEGIN Ovelt;\n   Genome= Haploid;");
  EXPECT_NE(usage, std::string::npos) << text;
  EXPECT_EQ(text.find("old"), std::string::npos);
  EXPECT_EQ(text.substr(text.size() - 6), "\nEND;\n");
}

TEST(UpdateNexus, ADataBlockBecomesTaxaAndCharactersInItsPlace) {
  ActiveData ad = NexusData();
  NexusDocument doc;
  doc.Blocks.push_back(Block(NexusBlockKind::kOther, "\n", "BEGIN NOTES; END;", false));
  doc.Blocks.push_back(
      Block(NexusBlockKind::kData, "\n", "BEGIN DATA; x END;", true, {"TITLE Genes;"}));
  doc.Trailing = "\n";
  const std::string text = Updated(ad, doc);
  EXPECT_EQ(text.substr(0, text.find("BEGIN Ovelt;")),
            "#NEXUS\nBEGIN NOTES; END;\n"
            "BEGIN TAXA;\nDIMENSIONS NTAX=3;\nTAXLABELS\none\ntwo\nthree;\nEND;\n\n"
            "BEGIN CHARACTERS;\nTITLE Genes;\nDIMENSIONS NCHAR=6;\n"
            "FORMAT DATATYPE=DNA  MISSING=? GAP=-;\nMATRIX\n"
            "one    ACGTAC\ntwo    ACGAAC\nthree  TCGTAC\n;\nEND;\n");
  // With the old version the same place takes one DATA block.
  ad.Format.NexusVersion = 1;
  const std::string old = Updated(ad, doc);
  EXPECT_NE(old.find("BEGIN NOTES; END;\nBEGIN DATA;\nTITLE Genes;\nDIMENSIONS NTAX=3 NCHAR=6;"),
            std::string::npos)
      << old;
  EXPECT_EQ(old.find("TAXA"), std::string::npos);
}

TEST(UpdateNexus, BlocksTheFileLackedFollowItsLastBlock) {
  ActiveData ad = NexusData();
  test::AddSet(ad, "P", {2});
  AssignCodingRegion(ad, 1, 6, 1);
  LeaveForm14(ad, true);
  NexusDocument doc;
  doc.Blocks.push_back(Block(NexusBlockKind::kData, "\n", "BEGIN DATA; x END;", true));
  doc.Blocks.push_back(Block(NexusBlockKind::kOther, "\n", kTrees, false));
  const std::string text = Updated(ad, doc);
  const size_t trees = text.find(kTrees);
  ASSERT_NE(trees, std::string::npos);
  EXPECT_EQ(text.substr(trees + kTrees.size()),
            "\nBEGIN SETS;\n   TaxSet P = 2;\nEND;\nBEGIN CODONS; \n   CODONPOSSET * UNTITLED = \n"
            "      1: 1-4\\3,\n      2: 2-5\\3,\n      3: 3-6\\3;\n"
            "   CODESET * UNTITLED = Universal: all;\nEND;\n"
            "BEGIN Ovelt;\n   Genome= Diploid;\n   ChromosomalLocation= Autosome;\n"
            "   Oveltversion= Ver. 4.00.5;\nEND;");
}

TEST(UpdateNexus, WithoutARecordedShapeTheFileIsWrittenAsThePlainWriterDoes) {
  const ActiveData ad = NexusData();
  EXPECT_EQ(Updated(ad, NexusDocument{}),
            Written([&](WriterLines& out) { WriteNexus(ad, kStamp, {}, out); }, "\n"));
}

TEST(UpdateNexusDataFile, AsksWithThePathAndWritesInPlace) {
  TempDir dir;
  const std::string path = dir.Write("sample.nex", "old");
  const ActiveData ad = NexusData();
  ScriptedPlatform platform;
  platform.Answers.push_back(MsgAnswer::kCancel);
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), path, platform, "Ver. 4.00.5"));
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text, path + " ?");
  EXPECT_EQ(platform.Boxes[0].Title, "Careful!");
  EXPECT_EQ(ReadBytes(path), "old");

  platform.Answers.push_back(MsgAnswer::kOk);
  ASSERT_TRUE(UpdateNexusDataFile(ad, Recorded(), path, platform, "Ver. 4.00.5"));
  std::ostringstream expected;
  WriterLines out(expected, "\r\n");
  WriteNexusUpdate(ad, Recorded(), kStamp, {}, out);
  EXPECT_EQ(ReadBytes(path), expected.str());
  EXPECT_EQ(platform.StatusTexts, std::vector<std::string>{"Saving..."});
}

TEST(UpdateNexusDataFile, ExcludedSequencesAreAnnounced) {
  TempDir dir;
  const std::string path = dir.Write("sample.nex", "old");
  ActiveData ad = NexusData();
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  ScriptedPlatform platform;
  platform.Answers = {MsgAnswer::kOk, MsgAnswer::kCancel};
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), path, platform, "Ver. 4.00.5"));
  EXPECT_EQ(platform.LastBox(),
            "The active Data File contains only 2 sequences. Ovelt will update the sample.nex Data "
            "File with only 2 sequences.");
  EXPECT_EQ(ReadBytes(path), "old");
}

TEST(UpdateNexusDataFile, OnlyForANexusFileAndAFailedWriteSaysSo) {
  TempDir dir;
  ActiveData ad = NexusData();
  ad.FileKind = kFasta;
  ScriptedPlatform platform;
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), dir.File("x.nex"), platform, "v"));
  EXPECT_TRUE(platform.Boxes.empty());

  // A full disk: the file keeps its old bytes and the failure is told.
  ad.FileKind = kNexus;
  const std::string path = dir.Write("x.nex", std::string(5000, 'x'));
  const auto end = testing::RunWithWriteLimit(100, testing::WriteFault::kDiskFull, [&] {
    platform.Answers.push_back(MsgAnswer::kOk);
    const bool written = UpdateNexusDataFile(ad, Recorded(), path, platform, "v");
    return !written && platform.LastBox() == "Error in saving file" ? 3 : 0;
  });
  EXPECT_TRUE(end.exited && end.code == 3);
  EXPECT_EQ(ReadBytes(path), std::string(5000, 'x'));
}

TEST(UpdateNexusDataFile, DataReadFromStandardInputOrAPipeHaveNoFileToUpdate) {
  TempDir dir;
  const ActiveData ad = NexusData();
  ScriptedPlatform platform;
  platform.Answers.push_back(MsgAnswer::kOk);
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), "-", platform, "v"));
  EXPECT_EQ(platform.LastBox(), "The data were read from standard input: there is no file to update.");
  const std::string missing = dir.File("none/x.nex");
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), missing, platform, "v"));
  EXPECT_EQ(platform.LastBox(), "The data were read from " + missing +
                                    ", which is not a regular file: there is no file to update.");
  EXPECT_FALSE(UpdateNexusDataFile(ad, Recorded(), "/dev/null", platform, "v"));
  EXPECT_EQ(platform.Boxes.size(), 3u);  // no question was asked
}

}  // namespace
}  // namespace ovelt

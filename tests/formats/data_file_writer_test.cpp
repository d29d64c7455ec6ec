// "Save / Export Data As...": the notice for excluded sequences, the save dialog, the status
// line, the codon table check of NEXUS and the message of a failed write.

#include "formats/data_file_writer.h"

#include <gtest/gtest.h>

#include "formats/fasta_writer.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "writer_test_support.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;

const std::string kVersion = "Ver. 4.00.5";

TEST(ExportDataFile, KindsOfTheMenu) {
  ASSERT_EQ(WriterKinds().size(), 5u);
  const WriterKind* nbrf = FindWriterKind(2);
  ASSERT_NE(nbrf, nullptr);
  EXPECT_EQ(nbrf->DefaultName, "*.nbr");
  EXPECT_EQ(nbrf->Filter, "NBRF Format (*.nbr; *.pir)|*.nbr;*.pir|All Files (*.*)|*.*");
  EXPECT_EQ(nbrf->StatusText, " NBRF Format");
  EXPECT_EQ(FindWriterKind("phylip")->MenuIndex, 4);
  EXPECT_EQ(FindWriterKind(6), nullptr);  // Roehl's format is written elsewhere
  EXPECT_EQ(FindWriterKind("roehl"), nullptr);
}

TEST(ExportDataFile, SaveDialogStatusAndTheFileAsTheWriterMakesIt) {
  TempDir dir;
  const ActiveData ad = test::MakeAlignment({"ACGT", "ACGA"});
  ScriptedPlatform platform;
  platform.SaveNames.push_back(dir.File("out.fas"));
  ASSERT_TRUE(ExportDataFile(ad, platform, kFastaWriterIndex, kVersion));
  ASSERT_EQ(platform.SaveDialogs.size(), 1u);
  EXPECT_EQ(platform.SaveDialogs[0].Title, "Save/Export File:  sample.fas  As FASTA File Format");
  EXPECT_EQ(platform.SaveDialogs[0].Filter, "FASTA Format (*.fas)|*.fas|All Files (*.*)|*.*");
  EXPECT_EQ(platform.SaveDialogs[0].DefaultName, "*.fas");
  EXPECT_EQ(platform.StatusTexts, (std::vector<std::string>{" FASTA Format", "Saving..."}));
  EXPECT_TRUE(platform.Boxes.empty());
  // The platform's clock (March 5, 2004) dates the file.
  EXPECT_EQ(ReadBytes(dir.File("out.fas")),
            testing::Written([&](WriterLines& out) { WriteFasta(ad, testing::kStamp, out); }));
  EXPECT_EQ(platform.ProgressValues.front(), 0);
  EXPECT_EQ(platform.ProgressValues.back(), -1);
}

TEST(ExportDataFile, CancelledSaveDialogWritesNothing) {
  const ActiveData ad = test::MakeAlignment({"ACGT"});
  ScriptedPlatform platform;
  EXPECT_FALSE(ExportDataFile(ad, platform, kMegaWriterIndex, kVersion));
  EXPECT_EQ(platform.SaveDialogs.size(), 1u);
  EXPECT_TRUE(platform.Boxes.empty());
}

TEST(ExportDataFile, ExcludedSequencesAreAnnouncedAndCancelEndsTheCommand) {
  TempDir dir;
  ActiveData ad = test::MakeAlignment({"AAAA", "CCCC", "GGGG"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {1}), 1).has_value());
  ScriptedPlatform platform;
  platform.Answers.push_back(MsgAnswer::kCancel);
  EXPECT_FALSE(ExportDataFile(ad, platform, kPhylipWriterIndex, kVersion));
  ASSERT_EQ(platform.Boxes.size(), 1u);
  EXPECT_EQ(platform.Boxes[0].Text,
            "The active Data File contains only 2 sequences. Ovelt will generate a Data File "
            "with 2 sequences.");
  EXPECT_EQ(platform.Boxes[0].Buttons, MsgButtons::kOkCancel);
  EXPECT_TRUE(platform.SaveDialogs.empty());

  platform.Answers.push_back(MsgAnswer::kOk);
  platform.SaveNames.push_back(dir.File("two.phy"));
  ASSERT_TRUE(ExportDataFile(ad, platform, kPhylipWriterIndex, kVersion));
  EXPECT_EQ(ReadBytes(dir.File("two.phy")), "2 4\r\nseq2      CCCC\r\nseq3      GGGG\r\n");
}

TEST(ExportDataFile, AFailedWriteSaysSo) {
  TempDir dir;
  const ActiveData ad = test::MakeAlignment({"ACGT"});
  ScriptedPlatform platform;
  platform.SaveNames.push_back(dir.File("no/such/folder/x.nbr"));
  EXPECT_FALSE(ExportDataFile(ad, platform, kNbrfWriterIndex, kVersion));
  EXPECT_EQ(platform.LastBox(), "Error in saving file");
}

TEST(ExportDataFile, OnlyNexusFollowsTheChosenLineEnds) {
  TempDir dir;
  ActiveData ad = test::MakeAlignment({"ACGT", "ACGA"});
  ad.Format.LineDelimiter = 3;
  ScriptedPlatform platform;
  platform.SaveNames.push_back(dir.File("x.nex"));
  platform.SaveNames.push_back(dir.File("x.meg"));
  ASSERT_TRUE(ExportDataFile(ad, platform, kNexusWriterIndex, kVersion));
  ASSERT_TRUE(ExportDataFile(ad, platform, kMegaWriterIndex, kVersion));
  const std::string nexus = ReadBytes(dir.File("x.nex"));
  EXPECT_EQ(nexus.substr(0, 7), "#NEXUS\n");
  EXPECT_EQ(nexus.find('\r'), std::string::npos);
  EXPECT_EQ(ReadBytes(dir.File("x.meg")).substr(0, 8), "#MEGA \r\n");
}

TEST(ExportDataFile, NexusCarriesTheAssignedTableUnlessItsCodeDiffers) {
  TempDir dir;
  ActiveData ad = test::MakeAlignment({"ACGT", "ACGA"});
  ad.PrefTableName = "Drosophila_melanogaster";
  ScriptedPlatform platform;
  platform.SaveNames.push_back(dir.File("with.nex"));
  ASSERT_TRUE(ExportDataFile(ad, platform, kNexusWriterIndex, kVersion));
  EXPECT_NE(ReadBytes(dir.File("with.nex"))
                .find("BEGIN CODONUSAGE;\r\n    PREFUNPREFCODONS GENETICCODE=Universal "
                      "Drosophila_melanogaster = \r\n"),
            std::string::npos);
  EXPECT_TRUE(platform.Boxes.empty());

  ad.Format.GeneticCodeIndex = 2;
  platform.SaveNames.push_back(dir.File("without.nex"));
  ASSERT_TRUE(ExportDataFile(ad, platform, kNexusWriterIndex, kVersion));
  EXPECT_EQ(platform.LastBox(),
            "The current Genetic Code does not agree with that assigned in the Pref-UnPref Table!");
  const std::string without = ReadBytes(dir.File("without.nex"));
  EXPECT_EQ(without.find("CODONUSAGE"), std::string::npos);
  EXPECT_NE(without.find("BEGIN Ovelt;"), std::string::npos);
}

}  // namespace
}  // namespace ovelt

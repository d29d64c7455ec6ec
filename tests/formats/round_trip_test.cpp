// Every file of the reader corpus that loads, written in each of the five formats and read back:
// the matrix comes back cell for cell, and the names as far as each format keeps them.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <sstream>
#include <string>

#include "core/coding_regions.h"
#include "formats/data_file_writer.h"
#include "formats/nexus_extras.h"
#include "formats/update_nexus.h"
#include "formats/writer_names.h"
#include "support/corpus_manifest.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "writer_test_support.h"

namespace ovelt {
namespace {

using testing::DataOf;
using testing::kCorpusDir;
using testing::ManifestRow;
using testing::MegaAnswersFromNotes;
using testing::ReadManifest;
using testing::ScriptedPlatform;

// The FileKind code a reader gives each writer's files.
int KindCode(int menu_index) {
  switch (menu_index) {
    case kFastaWriterIndex:
      return kFasta;
    case kMegaWriterIndex:
      return kMega;
    case kNbrfWriterIndex:
      return kNbrf;
    case kNexusWriterIndex:
      return kNexus;
    default:
      return kPhylip;
  }
}

// The name a file of this kind gives back for `field`.
std::string NameReadBack(const std::string& field, int menu_index) {
  switch (menu_index) {
    case kMegaWriterIndex:
      return FixedName(CleanName(field, NameMode::kNexusMega));
    case kNexusWriterIndex: {
      // A quoted name reads as it stands; an unquoted underscore stands for a blank.
      std::string name = NexusName(field);
      if (name.front() == '\'') return FixedName(name.substr(1, name.size() - 2));
      for (char& c : name) c = c == '_' ? ' ' : c;
      return FixedName(name);
    }
    case kPhylipWriterIndex:
      return FixedName(TrimmedName(PhylipNameField(field)));
    default:
      return FixedName(CleanName(field, NameMode::kPlain));
  }
}

// NEXUS names must differ other than by case and by "_" for blank. Names cut to 20 characters
// or cut at a blank by a reader may not (two FASTA headers "Seq 1" and "Seq 2" both give
// "Seq"); such a file is written all the same, and a NEXUS reader may refuse it.
bool NexusNamesDistinct(const ActiveData& ad) {
  std::set<std::string> keys;
  for (int s = 1; s <= ad.NumSeqs; ++s) {
    std::string key = NexusName(ad.IncNames[static_cast<size_t>(s)]);
    for (char& c : key)
      c = c == '_' ? ' ' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (!keys.insert(key).second) return false;
  }
  return true;
}

std::string Row(const SeqMatrix& m, int s) {
  return {m.sequence(s), static_cast<size_t>(m.sites())};
}

class RoundTrip : public ::testing::TestWithParam<ManifestRow> {};

TEST_P(RoundTrip, EveryFormatGivesBackTheMatrixAndTheNames) {
  const ManifestRow& row = GetParam();
  ScriptedPlatform platform;
  if (auto mega = MegaAnswersFromNotes(row.notes)) platform.Mega = *mega;
  LoadedFile original;
  try {
    original = ReadDataFile(kCorpusDir + row.path, platform);
  } catch (const ReadError& error) {
    FAIL() << "the corpus file does not load: " << error.what();
  }
  ActiveData ad = DataOf(original);
  // Symbols of a MEGA dialog belong to the file read, not to the files written here.
  ad.Format = FormatAttributes{};
  ad.Format.Interleaved = original.Interleaved;
  ad.Format.BlockLength = original.BlockLength;

  for (const WriterKind& kind : WriterKinds()) {
    SCOPED_TRACE(kind.Key);
    if (kind.MenuIndex == kNexusWriterIndex && !NexusNamesDistinct(ad)) continue;
    std::ostringstream bytes;
    WriterLines out(bytes, "\r\n");
    WriteDataFileTo(ad, kind, testing::kStamp, {}, out);
    LoadedFile back;
    try {
      back = ReadDataBuffer(bytes.str(), "written", KindCode(kind.MenuIndex),
                            MegaOptions{0, '.', '-', '?'});
    } catch (const ReadError& error) {
      ADD_FAILURE() << "written file refused: " << error.what();
      continue;
    }
    ASSERT_EQ(back.NumSeqs(), ad.NumSeqs);
    ASSERT_EQ(back.NumSites, ad.NumSites);
    for (int s = 1; s <= ad.NumSeqs; ++s) {
      EXPECT_EQ(Row(back.Matrix, s), Row(ad.IncMatrix, s)) << "sequence " << s;
      EXPECT_EQ(back.Names[static_cast<size_t>(s)],
                NameReadBack(ad.IncNames[static_cast<size_t>(s)], kind.MenuIndex))
          << "sequence " << s;
    }
  }
}

std::string RowName(const ::testing::TestParamInfo<ManifestRow>& info) {
  std::string name = info.param.path;
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
}

// The files that load, by the manifest or by its updated expectations.
std::vector<ManifestRow> LoadingFiles() {
  std::vector<ManifestRow> rows;
  for (const ManifestRow& row : ReadManifest()) {
    if (row.expected == "loads" || testing::kUpdatedExpectations.count(row.path) > 0)
      rows.push_back(row);
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Corpus, RoundTrip, ::testing::ValuesIn(LoadingFiles()), RowName);

// A NEXUS file with everything a user defines on the data: written, read back, and every
// annotation is there again.
TEST(NexusRoundTrip, SetsDomainsCodingCodeGenomeAndCodonTableSurvive) {
  ActiveData ad = test::MakeAlignment(
      {"ATGAAACCCGGGTTTAAA", "ATGAAGCCCGGATTTAAA", "ATGAAACCTGGGTTCAAA", "ATGAAACCCGGGTTTAAG"},
      {"Dmel one", "Dmel-two", "Dsim 1", "Dsim 2"});
  ad.FileKind = kNexus;
  test::AddSet(ad, "Mel", {1, 2});
  test::AddSet(ad, "Sim", {4, 3});
  ad.Domains.push_back({"Exon", {1, 2, 3, 4, 5, 6, 10, 11, 12}});
  ad.Domains.push_back({"Rest", {7, 8, 9, 13, 14, 15, 16, 17, 18}});
  AssignCodingRegion(ad, 1, 12, 1);
  AssignCodingRegion(ad, 14, 18, 2);
  LeaveForm14(ad, true);
  ad.Format.GeneticCodeIndex = 3;
  ad.Format.GenomeState = 1;
  ad.Format.ChromosomalLocation = 6;
  ad.Format.NexusVersion = 2;
  CodPrefUnPref table;
  table.sName("Dros_mito");
  table.creat(3, kUnpreferred);
  table.sFile(1);
  table.sPrefUnPref(2, kPreferred1);          // TTC
  table.sPrefUnPref(22, kPreferred2);         // CCC
  table.sPrefUnPref(43, kUnknownPreference);  // AAA
  ad.PrefTables.creatModifyGC(table);
  ad.PrefTableName = "Dros_mito";

  ScriptedPlatform platform;
  std::ostringstream bytes;
  WriterLines out(bytes, "\r\n");
  WriteDataFileTo(ad, *FindWriterKind(kNexusWriterIndex), testing::kStamp,
                  CodonUsageForNexus(ad, platform), out);
  EXPECT_TRUE(platform.Boxes.empty());
  const LoadedFile back = ReadDataBuffer(bytes.str(), "written.nex");
  ASSERT_TRUE(back.Nexus.has_value());
  const NexusExtras& x = *back.Nexus;
  ASSERT_EQ(back.NumSeqs(), 4);
  for (int s = 1; s <= 4; ++s) EXPECT_EQ(Row(back.Matrix, s), Row(ad.IncMatrix, s));
  EXPECT_EQ(back.Names[1], FixedName("Dmel one"));
  EXPECT_EQ(back.Names[2], FixedName("Dmeltwo"));
  ASSERT_EQ(x.SequenceSets.size(), 2u);
  EXPECT_EQ(x.SequenceSets[0].nombre(), "Mel");
  EXPECT_EQ(x.SequenceSets[0].members(), (std::vector<double>{1, 2}));
  EXPECT_EQ(x.SequenceSets[1].nombre(), "Sim");
  EXPECT_EQ(x.SequenceSets[1].members(), (std::vector<double>{3, 4}));
  ASSERT_EQ(x.Domains.size(), 2u);
  EXPECT_EQ(x.Domains[0].Name, "Exon");
  EXPECT_EQ(x.Domains[0].Sites, ad.Domains[0].Sites);
  EXPECT_EQ(x.Domains[1].Sites, ad.Domains[1].Sites);
  std::vector<int16_t> positions = x.CodonPosition;
  positions.resize(ad.CodonPosition.size(), 0);
  EXPECT_EQ(positions, ad.CodonPosition);
  EXPECT_EQ(x.Format.CodingAssigned, 1);
  EXPECT_EQ(x.Format.GeneticCodeIndex, 3);
  EXPECT_EQ(x.Format.GenomeState, 1);
  EXPECT_EQ(x.Format.ChromosomalLocation, 6);
  EXPECT_EQ(x.Format.MatchSymbolOn, 1);
  ASSERT_EQ(x.PrefTables.size(), 1u);
  EXPECT_EQ(x.PrefTables[0].name(), "Dros_mito");
  EXPECT_EQ(x.PrefTables[0].GC(), 3);
  EXPECT_EQ(x.PrefTableName, "Dros_mito");
  for (int i : {2, 22, 43}) EXPECT_EQ(x.PrefTables[0].prefUnPref(i), table.prefUnPref(i)) << i;
  EXPECT_EQ(x.PrefTables[0].prefUnPref(1), kUnpreferred);
}

// Every NEXUS file of the corpus: updated in place, its blocks that the reader left unread come
// out byte for byte and in their order, and the updated file reads back to the same data.
class UpdateCorpusNexus : public ::testing::TestWithParam<ManifestRow> {};

TEST_P(UpdateCorpusNexus, UnreadBlocksStayAndTheDataReadsBack) {
  const ManifestRow& row = GetParam();
  const std::string text = testing::ReadBytes(kCorpusDir + row.path);
  const LoadedFile file = ReadDataBuffer(text, row.path);
  ASSERT_TRUE(file.Nexus.has_value());
  ActiveData ad = DataOf(file, "corpus.nex");
  ApplyNexusExtras(*file.Nexus, ad);
  ad.FileKind = kNexus;
  const NexusDocument& doc = file.Nexus->Document;
  std::ostringstream bytes;
  WriterLines out(bytes, "\n");
  WriteNexusUpdate(ad, doc, testing::kStamp, {}, out);
  const std::string updated = bytes.str();
  size_t from = 0;
  for (const NexusBlock& block : doc.Blocks) {
    if (block.Read) continue;
    const size_t at = updated.find(block.Text, from);
    ASSERT_NE(at, std::string::npos) << block.Name << " lost or moved";
    from = at + block.Text.size();
  }
  // Names cut to 20 characters may have become equal; see NexusNamesDistinct.
  if (!NexusNamesDistinct(ad)) return;
  const LoadedFile back = ReadDataBuffer(updated, "updated.nex");
  ASSERT_EQ(back.NumSeqs(), file.NumSeqs());
  for (int s = 1; s <= file.NumSeqs(); ++s) {
    EXPECT_EQ(Row(back.Matrix, s), Row(file.Matrix, s)) << "sequence " << s;
  }
  EXPECT_EQ(back.Nexus->SequenceSets.size(), file.Nexus->SequenceSets.size());
  EXPECT_EQ(back.Nexus->Domains.size(), file.Nexus->Domains.size());
  EXPECT_EQ(back.Nexus->CodonPosition, file.Nexus->CodonPosition);
}

std::vector<ManifestRow> LoadingNexusFiles() {
  std::vector<ManifestRow> rows;
  for (const ManifestRow& row : LoadingFiles())
    if (row.format == "NEXUS") rows.push_back(row);
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Corpus, UpdateCorpusNexus, ::testing::ValuesIn(LoadingNexusFiles()),
                         RowName);

TEST(UpdateNexusFile, ATreesBlockStaysByteForByteInItsPlace) {
  const std::string trees = "begin trees;\n  [a tree]\n  tree one = [&U] (a,(b,c));\nEND;";
  const std::string text =
      "#NEXUS\n[made by hand]\nbegin data;\n dimensions ntax=3 nchar=4;\n"
      " format datatype=dna missing=? gap=-;\n matrix\n a ACGT\n b ACGA\n c TCGT\n ;\nend;\n\n" +
      trees + "\n\nbegin sets;\n taxset two = 1-2;\nend;\n";
  const LoadedFile file = ReadDataBuffer(text, "t.nex");
  ActiveData ad = DataOf(file, "t.nex");
  ApplyNexusExtras(*file.Nexus, ad);
  ad.FileKind = kNexus;
  test::AddSet(ad, "last", {3});
  std::ostringstream bytes;
  WriterLines out(bytes, "\n");
  WriteNexusUpdate(ad, file.Nexus->Document, testing::kStamp, {}, out);
  const std::string updated = bytes.str();
  const size_t at = updated.find("\n\n" + trees + "\n\n");
  ASSERT_NE(at, std::string::npos) << updated;
  EXPECT_EQ(updated.substr(0, 22), "#NEXUS\n[made by hand]\n");
  EXPECT_LT(updated.find("MATRIX"), at);
  EXPECT_GT(updated.find("BEGIN SETS;\n   TaxSet two = 1-2;\n   TaxSet last = 3;\nEND;"), at);
  const LoadedFile back = ReadDataBuffer(updated, "u.nex");
  ASSERT_EQ(back.Nexus->SequenceSets.size(), 2u);
  EXPECT_EQ(Row(back.Matrix, 3), "TCGT");
}

TEST(RoundTripCorpus, ManyFilesTakePart) { EXPECT_GE(LoadingFiles().size(), 30u); }

}  // namespace
}  // namespace ovelt

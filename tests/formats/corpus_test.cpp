// Every FASTA, NBRF/PIR, MEGA, PHYLIP and NEXUS file of the reader corpus (alignment files that
// other programs wrote), read through ReadDataFile and checked against MANIFEST.tsv.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "formats/read_file.h"
#include "formats/read_messages.h"
#include "support/corpus_manifest.h"
#include "support/scripted_platform.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::Row;
using testing::ScriptedPlatform;

using testing::kCorpusDir;
using testing::ManifestRow;
using testing::MegaAnswersFromNotes;
using testing::ReadManifest;

const std::string& kCorpus = kCorpusDir;
const auto& kUpdated = testing::kUpdatedExpectations;

// The report sentence that the manifest's reason names.
std::string ExpectedSentence(const ManifestRow& row) {
  const std::string& why = row.expected;
  std::smatch m;
  if (why.find("(NEXUS code 9)") != std::string::npos) {
    return "Ovelt can not read NEXUS files with PROTEIN sequence data";
  }
  if (std::regex_search(why, m, std::regex("invalid character '(.)' in sequence (\\d+) \\(NEXUS code 64\\)"))) {
    return "Invalid character detected in sequence: " + m[2].str() + "\nCharacter: " + m[1].str();
  }
  if (why.find("no DATA or CHARACTERS block") != std::string::npos) {
    return "Invalid or Erroneous Nexus File";
  }
  if (why.find("Sequences are of unequal lengths") != std::string::npos) return kUnequalLengths;
  if (why.find("Bad or unknown file format") != std::string::npos) {
    return "\n\nBad or unknown file format";
  }
  if (why.find("'.' in the first sequence (code 0)") != std::string::npos) {
    return kDotInFirstSequence;
  }
  if (why.find("MEGA genetic distances (code 3)") != std::string::npos) return kMegaDistances;
  if (why.find("error 8888") != std::string::npos) {
    return "Bad or unknown file format. Ovelt can not read PHYLIP Data Files with Genetic "
           "Distances Information.";
  }
  if (why.find("(PHYLIP code 1)") != std::string::npos) return "\n\nInvalid number of sites";
  if (why.find("(PHYLIP code 2)") != std::string::npos) {
    return "\n\nPHYLIP file format Error !\nInvalid number of sites";
  }
  if (std::regex_search(why, m, std::regex("invalid character '(.)' in sequence (\\d+) \\(PHYLIP code 4\\)"))) {
    return "Invalid character '" + m[1].str() + "' detected in sequence " + m[2].str();
  }
  if (std::regex_search(why, m, std::regex("invalid character '(.)' \\(code 1( \\+ ambiguity-code note)?\\)"))) {
    std::string sentence = "Invalid character detected:  '" + m[1].str() + "'";
    if (m[2].matched) sentence += std::string("\n") + kAmbiguityNote;
    return sentence;
  }
  ADD_FAILURE() << "no sentence known for the reason of " << row.path << ": " << why;
  return "?";
}


class CorpusTest : public ::testing::TestWithParam<ManifestRow> {};

TEST_P(CorpusTest, ReadsAsTheManifestSays) {
  const ManifestRow& row = GetParam();
  const std::string file = kCorpus + row.path;
  ASSERT_EQ(static_cast<long>(std::filesystem::file_size(file)), row.bytes)
      << "the corpus file changed: " << row.path;

  ScriptedPlatform platform;
  const std::optional<MegaOptions> mega = MegaAnswersFromNotes(row.notes);
  if (row.format == "MEGA") {
    ASSERT_TRUE(mega.has_value()) << "notes give no MEGA dialog answers";
    platform.MegaAnswers.push_back(mega);
  }

  bool loads = row.expected == "loads";
  int seqs = row.seqs;
  int sites = row.sites;
  if (auto it = kUpdated.find(row.path); it != kUpdated.end()) {
    loads = true;
    seqs = it->second.seqs;
    sites = it->second.sites;
  }

  if (loads) {
    LoadedFile loaded;
    try {
      loaded = ReadDataFile(file, platform);
    } catch (const ReadError& error) {
      FAIL() << "refused: " << error.what();
    }
    EXPECT_EQ(loaded.NumSeqs(), seqs);
    EXPECT_EQ(loaded.NumSites, sites);
    EXPECT_EQ(loaded.Matrix.seqs(), seqs);
    EXPECT_EQ(loaded.Matrix.sites(), sites);
    // Every cell is one of the six symbols, and every name a 20-character field.
    for (int s = 1; s <= loaded.NumSeqs(); ++s) {
      EXPECT_EQ(loaded.Names[static_cast<size_t>(s)].size(), 20u);
      EXPECT_EQ(Row(loaded, s).find_first_not_of("ACGT-?"), std::string::npos) << "sequence " << s;
    }
    std::smatch m;
    if (std::regex_search(row.notes, m, std::regex("interleaved, BlockLength (\\d+)"))) {
      EXPECT_EQ(loaded.Interleaved, 1);
      EXPECT_EQ(loaded.BlockLength, std::stoi(m[1].str()));
    }
    if (row.notes.find("sequential wrapped") != std::string::npos) {
      EXPECT_EQ(loaded.Interleaved, 0);
    }
  } else {
    const std::string sentence = ExpectedSentence(row);
    try {
      (void)ReadDataFile(file, platform);
      FAIL() << "loaded, but the manifest says " << row.expected;
    } catch (const ReadError& error) {
      EXPECT_NE(std::string(error.what()).find(sentence), std::string::npos)
          << "expected: " << sentence << "\ngot: " << error.what();
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

INSTANTIATE_TEST_SUITE_P(Manifest, CorpusTest, ::testing::ValuesIn(ReadManifest()), RowName);

TEST(Corpus, ManifestListsEveryFile) {
  EXPECT_EQ(ReadManifest().size(), 66u);
}

// The PAML and PHYLIP variants that the readers refuse, with the exact report of each.
TEST(Corpus, PhylipRefusalsKeepTheirCodes) {
  ScriptedPlatform platform;
  auto text_of = [&](const std::string& name) {
    try {
      (void)ReadDataFile(kCorpus + "phylip/" + name, platform);
    } catch (const ReadError& error) {
      return std::string(error.what());
    }
    return std::string("loaded");
  };
  const std::string head = "     Data File Error !\n\nInput data file: " + kCorpus + "phylip/";
  EXPECT_EQ(text_of("paml_abglobin.nuc"), head + "paml_abglobin.nuc\n\nInvalid number of sites");
  EXPECT_EQ(text_of("paml_lysozymeSmall.nuc"),
            head + "paml_lysozymeSmall.nuc\n\nInvalid character 'H' detected in sequence 2");
  EXPECT_EQ(text_of("paml_HIVenvSweden.txt"),
            head + "paml_HIVenvSweden.txt\n\nInvalid character '[' detected in sequence 1");
  EXPECT_EQ(text_of("garli_rana.phy"),
            head + "garli_rana.phy\n\nPHYLIP file format Error !\nInvalid number of sites");
  EXPECT_EQ(text_of("phylip_distance.data"),
            "Input data file: " + kCorpus +
                "phylip/phylip_distance.data\n\nBad or unknown file format. Ovelt can not read "
                "PHYLIP Data Files with Genetic Distances Information.");
}

// The same alignment as FASTA (CR line ends) and as interleaved PHYLIP (LF) gives one matrix.
TEST(Corpus, SameDataInTwoFormatsGivesEqualMatrices) {
  ScriptedPlatform platform;
  const LoadedFile fasta = ReadDataFile(kCorpus + "fasta/jmodeltest_aP6.fas", platform);
  const LoadedFile phylip = ReadDataFile(kCorpus + "phylip/jmodeltest_aP6.phy", platform);
  ASSERT_EQ(fasta.NumSeqs(), 6);
  ASSERT_EQ(phylip.NumSeqs(), 6);
  ASSERT_EQ(fasta.NumSites, 631);
  ASSERT_EQ(phylip.NumSites, 631);
  for (int s = 1; s <= 6; ++s) {
    EXPECT_EQ(Row(fasta, s), Row(phylip, s)) << "sequence " << s;
    EXPECT_EQ(fasta.Names[static_cast<size_t>(s)], phylip.Names[static_cast<size_t>(s)]);
  }
  EXPECT_EQ(fasta.FileKind, 4);
  EXPECT_EQ(phylip.FileKind, 3);
}

// The files that the format's own definition reads in full, checked cell by cell where the
// expected cells can be read off the file by eye.
TEST(Corpus, FilesThatTheFormatsOwnRulesReadInFull) {
  ScriptedPlatform platform;
  platform.MegaAnswers.push_back(MegaOptions{0, '.', '-', '?'});
  const LoadedFile test1 = ReadDataFile(kCorpus + "mega/emboss_test1.mega", platform);
  ASSERT_EQ(test1.NumSeqs(), 3);
  EXPECT_EQ(Row(test1, 1), "AATTTTTACCCCGGGGGGAGGGGGGACCCCGGGGGG");
  EXPECT_EQ(Row(test1, 2), "AACCCTTACCCCGGGGGGAGGGGGGACCCCGGGGGG");
  EXPECT_EQ(Row(test1, 3), "AATTTTTACAAAGGGGGGAGGGGGGACCCCGGGGGG");

  platform.MegaAnswers.push_back(MegaOptions{1, '.', '-', '?'});
  const LoadedFile hla = ReadDataFile(kCorpus + "mega/mega_HLA-3Seq.meg", platform);
  ASSERT_EQ(hla.NumSeqs(), 3);
  EXPECT_EQ(hla.NumSites, 822);
  EXPECT_EQ(hla.BlockLength, 81);  // 27 codons in the first block
  EXPECT_EQ(hla.Names[1], "A-2301              ");
  EXPECT_EQ(Row(hla, 1).substr(0, 27), "GGCTCCCACTCCATGAGGTATTTCTCC");
  EXPECT_EQ(Row(hla, 2).substr(0, 27), "GGCTCCCACTCCATGAGGTATTTCTAC");

  const LoadedFile bio = ReadDataFile(kCorpus + "phylip/bioperl_noninterleaved.phy", platform);
  ASSERT_EQ(bio.NumSeqs(), 4);
  EXPECT_EQ(bio.Interleaved, 0);
  EXPECT_EQ(bio.Names[2], "SBP-5.21_S          ");
  EXPECT_EQ(Row(bio, 1).substr(0, 20), "CCTCAGATCACTCTTTGGCA");
  EXPECT_EQ(Row(bio, 4).substr(290), "AAATTTT");

  platform.MegaAnswers.push_back(MegaOptions{0, '.', '-', '?'});
  const LoadedFile dloop = ReadDataFile(kCorpus + "mega/mega_D-loop_Vigilant.meg", platform);
  EXPECT_EQ(dloop.NumSeqs(), 70);
  EXPECT_EQ(dloop.NumSites, 633);
  EXPECT_EQ(dloop.Names[3], "Kung_(7)_{African}  ");
}

// The MEGA files with matching symbols: every "." or "i" took the first sequence's base.
TEST(Corpus, MegaMatchingSymbolsCopyTheFirstSequence) {
  ScriptedPlatform platform;
  platform.MegaAnswers.push_back(MegaOptions{1, 'i', '-', '?'});
  const LoadedFile loaded = ReadDataFile(kCorpus + "mega/jphyloio_MatchToken.meg", platform);
  ASSERT_EQ(loaded.NumSeqs(), 3);
  // "#A TAT TTC TCC / #B iii iii iAi / #C iii iii Aii", then "CGC TAG TTA" with the same rows.
  EXPECT_EQ(Row(loaded, 1), "TATTTCTCCCGCTAGTTA");
  EXPECT_EQ(Row(loaded, 2), "TATTTCTACCGCTAGTAA");
  EXPECT_EQ(Row(loaded, 3), "TATTTCACCCGCTAGATA");
  EXPECT_TRUE(loaded.HasMegaSymbols);
  EXPECT_EQ(loaded.MatchSymbol, 'i');
  EXPECT_EQ(platform.MegaQuestions, std::vector<std::string>{"jphyloio_MatchToken.meg"});
}

}  // namespace
}  // namespace ovelt

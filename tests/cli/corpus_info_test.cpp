// Every file of the reader corpus through `ovelt info`: files that load give their sequence
// count and length in the Data Information; refused files give the reader's message on
// standard error and a non-zero exit.

#include <gtest/gtest.h>

#include <regex>

#include "cli/cli_runner.h"
#include "support/corpus_manifest.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ManifestRow;
using testing::ReadManifest;

// The answers of the MEGA dialog the manifest's notes assume, as options.
std::vector<std::string> MegaArgs(const std::string& notes) {
  const auto mega = testing::MegaAnswersFromNotes(notes);
  if (!mega) return {};
  return {"--mega-layout", mega->Layout == 1 ? "interleaved" : "sequential",
          "--mega-match", std::string(1, mega->MatchSymbol),
          "--mega-gap", std::string(1, mega->GapSymbol),
          "--mega-missing", std::string(1, mega->MissingSymbol)};
}

std::string InfoValue(const std::string& out, const std::string& label) {
  std::smatch m;
  if (std::regex_search(out, m, std::regex("\n? " + label + " +([^\n]*)\n"))) return m[1];
  return "";
}

TEST(CorpusThroughInfo, EveryFileLoadsOrIsRefusedAsExpected) {
  const auto rows = ReadManifest();
  ASSERT_EQ(rows.size(), 66u);
  testing::TempDir home;
  int loaded = 0, refused = 0;
  for (const ManifestRow& row : rows) {
    SCOPED_TRACE(row.path);
    std::vector<std::string> args = {"info", std::string(OVELT_TEST_DATA) + "/corpus/" + row.path};
    for (const auto& a : MegaArgs(row.notes)) args.push_back(a);
    const testing::CliResult r = testing::RunOvelt(args, home.Path().string());

    bool loads = row.expected == "loads";
    int n = row.seqs, length = row.sites;
    if (auto it = testing::kUpdatedExpectations.find(row.path);
        it != testing::kUpdatedExpectations.end()) {
      loads = true;
      n = it->second.seqs;
      length = it->second.sites;
    }
    if (loads) {
      ++loaded;
      ASSERT_EQ(r.status, 0) << r.err;
      EXPECT_EQ(InfoValue(r.out, "Total Number of Sequences"), std::to_string(n)) << r.out;
      EXPECT_EQ(InfoValue(r.out, "Number of Nucleotides"), std::to_string(length)) << r.out;
      EXPECT_EQ(InfoValue(r.out, "File Format"),
                row.path == "nbrf/emboss_dna.nbrf" ? "FASTA" : std::string(row.format));
    } else {
      ++refused;
      EXPECT_EQ(r.status, 1);
      EXPECT_TRUE(r.out.empty()) << r.out;
      EXPECT_EQ(r.err.rfind("Ovelt:\n", 0), 0u) << r.err;
    }
  }
  EXPECT_EQ(loaded + refused, 66);
  // 27 refused by the manifest, less the three MEGA and PHYLIP files and the five NEXUS files
  // that the formats' own definitions read.
  EXPECT_EQ(refused, 19);
}

TEST(CorpusThroughInfo, RefusalsCarryTheReadersWords) {
  testing::TempDir home;
  const std::string corpus = std::string(OVELT_TEST_DATA) + "/corpus/";
  const auto unequal = testing::RunOvelt({"info", corpus + "fasta/bioperl_hs_owlmonkey.fas"},
                                         home.Path().string());
  EXPECT_EQ(unequal.err, "Ovelt:\n        Data File Error !\n\nInput data file: " + corpus +
                             "fasta/bioperl_hs_owlmonkey.fas\n\nSequences are of unequal lengths\n");
  const auto ambiguity = testing::RunOvelt({"info", corpus + "fasta/phangorn_H3N2_NA_20.fasta"},
                                           home.Path().string());
  EXPECT_NE(ambiguity.err.find("Invalid character detected:  'R'\nNOTE: Ovelt does not accept "
                               "DNA ambiguity codes!"),
            std::string::npos)
      << ambiguity.err;
  const auto unknown = testing::RunOvelt({"info", corpus + "fasta/seqinr_kaks-torture.fasta"},
                                         home.Path().string());
  EXPECT_NE(unknown.err.find("Bad or unknown file format"), std::string::npos) << unknown.err;
}

}  // namespace
}  // namespace ovelt

// Every file of the reader corpus through `ovelt info`: files that load give their sequence
// count and length in the Data Information; refused files give the reader's message on
// standard error and a non-zero exit; NEXUS files say that they are NEXUS.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

struct ManifestRow {
  std::string path, format, expected, notes;
  int n = 0;
  int length = 0;
};

std::vector<ManifestRow> ReadManifest() {
  std::ifstream in(std::string(OVELT_TEST_DATA) + "/corpus/MANIFEST.tsv");
  std::vector<ManifestRow> rows;
  std::string line;
  std::getline(in, line);  // header
  while (std::getline(in, line)) {
    std::vector<std::string> cells;
    std::stringstream ss(line);
    std::string cell;
    while (std::getline(ss, cell, '\t')) cells.push_back(cell);
    cells.resize(12);
    ManifestRow row;
    row.path = cells[0];
    row.format = cells[4];
    row.expected = cells[6];
    row.n = cells[7].empty() ? 0 : std::stoi(cells[7]);
    row.length = cells[8].empty() ? 0 : std::stoi(cells[8]);
    row.notes = cells[11];
    rows.push_back(row);
  }
  return rows;
}

// The answers of the MEGA dialog the manifest's notes assume.
std::vector<std::string> MegaArgs(const std::string& notes) {
  std::vector<std::string> args;
  std::smatch m;
  if (std::regex_search(notes, m, std::regex("MEGA dialog: (Sequential|Interleaved), Matching "
                                             "'(.)', Gap '(.)', Missing '(.)'"))) {
    args = {"--mega-layout", m[1] == "Interleaved" ? "interleaved" : "sequential",
            "--mega-match",  m[2],
            "--mega-gap",    m[3],
            "--mega-missing", m[4]};
  }
  return args;
}

// Where the format's own definition keeps data that a literal reading would drop, the reader
// follows the format (see the readers' comments); these files' expectations change with it.
const std::map<std::string, std::pair<int, int>> kSupersetReadings = {
    {"mega/emboss_test1.mega", {3, 36}},
    {"phylip/bioperl_noninterleaved.phy", {4, 297}},
    {"mega/mega_HLA-3Seq.meg", {3, 822}},
    // Its first two sequences start their cells on the next line, the rest on the name line:
    // keeping the cells of name lines makes it a well-formed sequential file.
    {"mega/mega_D-loop_Vigilant.meg", {70, 633}},
};

std::string InfoValue(const std::string& out, const std::string& label) {
  std::smatch m;
  if (std::regex_search(out, m, std::regex("\n? " + label + " +([^\n]*)\n"))) return m[1];
  return "";
}

TEST(CorpusThroughInfo, EveryFileLoadsOrIsRefusedAsExpected) {
  const auto rows = ReadManifest();
  ASSERT_EQ(rows.size(), 66u);
  testing::TempDir home;
  int loaded = 0, refused = 0, nexus = 0;
  for (const ManifestRow& row : rows) {
    SCOPED_TRACE(row.path);
    std::vector<std::string> args = {"info", std::string(OVELT_TEST_DATA) + "/corpus/" + row.path};
    for (const auto& a : MegaArgs(row.notes)) args.push_back(a);
    const testing::CliResult r = testing::RunOvelt(args, home.Path().string());

    bool loads = row.expected == "loads";
    int n = row.n, length = row.length;
    if (auto it = kSupersetReadings.find(row.path); it != kSupersetReadings.end()) {
      loads = true;
      n = it->second.first;
      length = it->second.second;
    }
    if (row.format == "NEXUS" && r.status != 0) {
      ++nexus;
      EXPECT_EQ(r.status, 1);
      EXPECT_NE(r.err.find("This is a NEXUS data file."), std::string::npos) << r.err;
      EXPECT_EQ(r.err.rfind("Ovelt:\n", 0), 0u);
      continue;
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
  EXPECT_EQ(nexus, 22);
  EXPECT_EQ(loaded + refused, 44);
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

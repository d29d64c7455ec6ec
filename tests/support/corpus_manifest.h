#pragma once
// The reader corpus: real alignment files written by other programs, and their manifest
// (MANIFEST.tsv) of what each should do when it is opened.

#include <fstream>
#include <map>
#include <ostream>
#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace ovelt::testing {

inline const std::string kCorpusDir = std::string(OVELT_TEST_DATA) + "/corpus/";

struct ManifestRow {
  std::string path;
  std::string format;
  std::string expected;  // "loads" or "refused: <reason>"
  int seqs = 0;
  int sites = 0;
  long bytes = 0;
  std::string notes;
};

// Parameterised tests name a row by its path.
inline void PrintTo(const ManifestRow& row, std::ostream* out) { *out << row.path; }

inline std::vector<std::string> SplitTabs(const std::string& line) {
  std::vector<std::string> fields;
  std::string field;
  std::istringstream in(line);
  while (std::getline(in, field, '\t')) fields.push_back(field);
  if (!line.empty() && line.back() == '\t') fields.emplace_back();
  return fields;
}

inline std::vector<ManifestRow> ReadManifest() {
  std::ifstream in(kCorpusDir + "MANIFEST.tsv");
  std::vector<ManifestRow> rows;
  std::string line;
  std::getline(in, line);  // column names
  while (std::getline(in, line)) {
    if (line.empty()) continue;
    const std::vector<std::string> f = SplitTabs(line);
    if (f.size() < 12) continue;
    ManifestRow row;
    row.path = f[0];
    row.format = f[4];
    row.expected = f[6];
    row.seqs = f[7].empty() ? 0 : std::stoi(f[7]);
    row.sites = f[8].empty() ? 0 : std::stoi(f[8]);
    row.bytes = std::stol(f[10]);
    row.notes = f[11];
    rows.push_back(row);
  }
  return rows;
}

// The answers of the "MEGA Data File" dialog that the notes give, e.g.
// "MEGA dialog: Interleaved, Matching 'i', Gap '-', Missing '?'".
inline std::optional<MegaOptions> MegaAnswersFromNotes(const std::string& notes) {
  static const std::regex pattern(
      "MEGA dialog: (Sequential|Interleaved), Matching '(.)', Gap '(.)', Missing '(.)'");
  std::smatch m;
  if (!std::regex_search(notes, m, pattern)) return std::nullopt;
  MegaOptions options;
  options.Layout = m[1] == "Interleaved" ? 1 : 0;
  options.MatchSymbol = m[2].str()[0];
  options.GapSymbol = m[3].str()[0];
  options.MissingSymbol = m[4].str()[0];
  return options;
}

// Where the format's own definition reads more than a literal reading of the reader's rules,
// the file loads; these expectations replace the manifest's.
struct Override {
  int seqs;
  int sites;
};
inline const std::map<std::string, Override> kUpdatedExpectations = {
    // Cells on the "#name" lines are kept: 18 there plus 18 on the next line.
    {"mega/emboss_test1.mega", {3, 36}},
    // "!Label" and "!Domain" command statements between the blocks are skipped.
    {"mega/mega_HLA-3Seq.meg", {3, 822}},
    // Indented continuation lines in blank-separated groups: sequential by the counts.
    {"phylip/bioperl_noninterleaved.phy", {4, 297}},
    // Follows from the first: its first two sequences have their cells on the next line, the
    // other 68 on the "#name" line, and all 70 have 633 cells.
    {"mega/mega_D-loop_Vigilant.meg", {70, 633}},
    // NEXUS read as the standard has it. Counts found apart from the reader (Biopython 1.80 for
    // SeaView and the torture file, a short script for the others).
    // Rows wrap over many lines in a sequential matrix.
    {"nexus/seaview_example.nxs", {54, 456}},
    // Blanks around "-" in CODONPOSSET "N: 1 - 629".
    {"nexus/bioperl_Treebase-chlamy-dna.nex", {14, 629}},
    // Blocks of rows without INTERLEAVE; later blocks carry no names.
    {"nexus/phyml_example.nex", {7, 2888}},
    // Three TAXA and several CHARACTERS blocks: the first DNA CHARACTERS block (x2.chars1,
    // linked to TAXA X2) is read.
    {"nexus/dendropy_multitaxa_mesquite.nex", {4, 1}},
    // CHARSETs and TAXSETs by label, by name and by other sets.
    {"nexus/biopython_test_Nexus_input.nex", {9, 48}},
};

}  // namespace ovelt::testing

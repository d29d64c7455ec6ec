#include "core/pref_builtin.h"

namespace ovelt {

namespace {

struct OrganismTable {
  const char* name;
  // Codons 1 to 64: a digit sets the status, a dot keeps the status of the genetic code.
  const char* statuses;
};

constexpr OrganismTable kOrganisms[] = {
    {"Drosophila_melanogaster",
     ".4...4.4.4...4...4.4.4.0.4.404...4...4.0.4.4.4...4.4.4...4.4.4.."},
    {"Drosophila_simulans",
     ".4...4.0.4...4...0.4.4.0.4.4.4...4...4.0.4.4.4...4.0.4.0.4.4.4.."},
    {"Drosophila_pseudoobscura",
     ".4...4.0.4...0...0.4.4.0.4.4.0.0.4...4.0.4.4.4.0.0.4.4.0.0.4.4.."},
    {"Arabidopsis_thaliana", "0400040004110411040004000404400004010400040404040400040004044400"},
    {"Caenorhabditis_elegans", "0400040004110411440000400404440004010400040400000400440004040040"},
    {"Saccharomyces_cerevisiae",
     "0404440004114011000000400440400044014400040400404400440004044000"},
    {"Escherichia_coli", "0400440004110411000400040404440004014400044004004044400404404400"},
    {"Bacillus_subtilis", "0440404004114011404040400440440004014040044000004040404004404400"},
};

std::vector<CodPrefUnPref> BuildTables() {
  std::vector<CodPrefUnPref> tables;
  // "None" belongs to no genetic code and says nothing about any codon.
  CodPrefUnPref none;
  none.sName("None");
  none.sGC(0);
  for (int i = 1; i <= 64; ++i) none.sPrefUnPref(i, kUnknownPreference);
  tables.push_back(none);
  for (const OrganismTable& organism : kOrganisms) {
    CodPrefUnPref table;
    table.creat(1, kUnknownPreference);
    table.sName(organism.name);
    table.sFile(0);
    for (int i = 1; i <= 64; ++i) {
      const char c = organism.statuses[i - 1];
      if (c != '.') table.sPrefUnPref(i, c - '0');
    }
    tables.push_back(table);
  }
  return tables;
}

}  // namespace

const std::vector<CodPrefUnPref>& BuiltInPrefTables() {
  static const std::vector<CodPrefUnPref> kTables = BuildTables();
  return kTables;
}

}  // namespace ovelt

#pragma once
// What a NEXUS file holds beyond the matrix and the names: the format and genome attributes,
// the coding map and genetic code, sequence sets, domains, preferred/unpreferred codon tables,
// the shape of the file for "Update NEXUS Data File", and the warnings of the read.

#include <cstdint>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/pref_table.h"
#include "core/sequence_set.h"
#include "formats/nexus_document.h"

namespace ovelt {

struct NexusExtras {
  // Every format attribute, as the file set it (BlockLength is not taken from the file and
  // stays 60). GeneticCodeIndex is 0 when the file names no code; CodingAssigned is 1 after a
  // CODONPOSSET, -1 otherwise. NexusVersion: 1 for a DATA block, 2 for TAXA and CHARACTERS.
  FormatAttributes Format;
  // Codon position per site, 1..NumSites (index 0 unused); all 0 without a CODONPOSSET.
  std::vector<int16_t> CodonPosition{0};
  // TAXSETs in file order, members numbered as the matrix rows.
  std::vector<PoblacionSecuencias> SequenceSets;
  // CHARSETs in file order.
  std::vector<DomainSet> Domains;
  // Tables of the CODONUSAGE block, in their order, and the name of the one to assign (the
  // last); empty when the file has none or its code disagrees with the file's.
  std::vector<CodPrefUnPref> PrefTables;
  std::string PrefTableName;
  // The blocks as they stood, for the writer of "Update NEXUS Data File".
  NexusDocument Document;
  // Texts of the boxes that warn without stopping the read, in order; shown after the load.
  std::vector<std::string> Warnings;
};

// Copies into `ad` what the shell keeps of a NEXUS file, after the file layer (`NumSites`,
// matrices, names) is in place and before the coding tables are rebuilt: the format
// attributes, the coding map, the sequence sets (replacing those of `ad`), the domains, the
// tables (added to `ad.PrefTables`, a table of the same name replaced) and the assigned table
// (the file's, or the default table of its genetic code). The document and the warnings are
// left to the caller.
void ApplyNexusExtras(const NexusExtras& extras, ActiveData& ad);

}  // namespace ovelt

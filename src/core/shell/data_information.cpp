#include "core/shell/data_information.h"

#include "core/genetic_code.h"

namespace ovelt {

std::string FileKindName(int16_t kind) {
  switch (kind) {
    case kMega: return "MEGA";
    case kNbrf: return "NBRF/PIR";
    case kNexus: return "NEXUS";
    case kPhylip: return "PHYLIP";
    case kFasta: return "FASTA";
    default: return "";
  }
}

std::vector<InfoRow> DataInformationRows(const ActiveData& d) {
  const FormatAttributes& f = d.Format;
  const std::string type = f.Interleaved != 0
                               ? "Interleaved (Block = " + std::to_string(f.BlockLength) + ")"
                               : "Sequential";
  const int32_t sets = d.SetCount();
  return {
      {"Number of Nucleotides", std::to_string(d.NumSites)},
      {"Total Number of Sequences", std::to_string(d.TotalSeqs)},
      {"   Sequences Used", std::to_string(d.NumSeqs)},
      {"File Format", FileKindName(d.FileKind)},
      {"   Type", type},
      {"Nucleotide Sequence", NucleotideTypeText(f.NucleotideType)},
      {"Genome", GenomeStateText(f.GenomeState)},
      {"Chromosomal Location", ChromosomalLocationText(f.ChromosomalLocation)},
      {"Codon Assignation", f.CodingAssigned >= 1 ? "Yes" : "No"},
      {"Genetic Code", GeneticCodeText(f.GeneticCodeIndex)},
      {"Preferred Codons Table", d.PrefTableName},
      {"Sequence Sets Definition", sets > 0 ? "Yes" : "No"},
      {"   Total Number of Subsets", sets > 0 ? std::to_string(sets) : "---"},
      {"Domain Sets Definition", d.DomainCount() > 0 ? "Yes" : "No"},
      {"   Total Number of Domains", d.DomainCount() > 0 ? std::to_string(d.DomainCount()) : "---"},
  };
}

std::string DataInformationText(const std::vector<InfoRow>& rows) {
  std::string text;
  for (const auto& [label, value] : rows) {
    std::string line = " " + label;
    if (line.size() < 31) line.resize(31, ' ');
    text += line + value + "\r\n";
  }
  return text;
}

}  // namespace ovelt

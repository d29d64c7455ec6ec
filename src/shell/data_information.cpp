#include "shell/data_information.h"

#include "core/genetic_code.h"
#include "core/report_head.h"

namespace ovelt {

namespace {
constexpr int16_t kUniversalCode = 1;  // "Nuclear Universal"
}  // namespace

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
  // A file that names no genetic code (a NEXUS file without a CODONS block) is read with the
  // universal one, as BuildGeneticCode does: the grid says so rather than leave the row blank.
  const int16_t code = f.GeneticCodeIndex >= 1 ? f.GeneticCodeIndex : kUniversalCode;
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
      {"Genetic Code", GeneticCodeText(code)},
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

namespace ovelt {

std::string DataAnnotationsText(const ActiveData& d) {
  std::string text;
  if (d.SetCount() > 0) {
    text += " Sequence Sets:\r\n";
    for (int32_t s = 1; s <= d.SetCount(); ++s) {
      const PoblacionSecuencias& set = d.SequenceSets[static_cast<size_t>(s)];
      std::vector<int32_t> members;
      for (double m : set.members()) members.push_back(static_cast<int32_t>(m));
      text += "    " + set.nombre() + ": " + CompactNumberList(members) + "  (" +
              std::to_string(members.size()) + " sequences" +
              (set.active() == 1 ? "" : ", excluded from analyses") + ")\r\n";
    }
  }
  if (d.DomainCount() > 0) {
    text += " Domains:\r\n";
    for (const DomainSet& domain : d.Domains)
      text += "    " + domain.Name + ": " + CompactNumberList(domain.Sites) + "  (" +
              std::to_string(domain.Sites.size()) + " sites)\r\n";
  }
  if (d.Format.CodingAssigned >= 1) {
    std::string regions;
    for (int32_t site = 1; site <= d.NumSites; ++site) {
      if (site >= static_cast<int32_t>(d.CodonPosition.size())) break;
      if (d.CodonPosition[static_cast<size_t>(site)] == 0) continue;
      int32_t last = site;
      while (last + 1 <= d.NumSites && last + 1 < static_cast<int32_t>(d.CodonPosition.size()) &&
             d.CodonPosition[static_cast<size_t>(last + 1)] != 0)
        ++last;
      regions += "    " + std::to_string(site) + "-" + std::to_string(last) +
                 "  (first site at codon position " +
                 std::to_string(d.CodonPosition[static_cast<size_t>(site)]) + ")\r\n";
      site = last;
    }
    if (!regions.empty()) text += " Protein coding regions:\r\n" + regions;
  }
  return text;
}

}  // namespace ovelt

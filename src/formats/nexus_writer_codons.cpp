// The CODONS block: the coding map as a CODONPOSSET and the genetic code as a CODESET.

#include "formats/nexus_writer_blocks.h"

namespace ovelt {
namespace {

// Sites of one codon position as runs with step three: "a-b\3" for a run of two or more
// codons, "a" for a codon standing alone.
std::string SteppedRuns(const std::vector<int32_t>& sites) {
  std::string text;
  for (size_t i = 0; i < sites.size();) {
    size_t j = i;
    while (j + 1 < sites.size() && sites[j + 1] == sites[j] + 3) ++j;
    if (!text.empty()) text += ' ';
    text += std::to_string(sites[i]);
    if (j > i) text += "-" + std::to_string(sites[j]) + "\\3";
    i = j + 1;
  }
  return text;
}

}  // namespace

std::vector<std::string> CodingMapLines(const std::vector<int16_t>& codon_position,
                                        int32_t num_sites) {
  std::vector<std::vector<int32_t>> by_value(4);
  for (int32_t site = 1; site <= num_sites; ++site) {
    const int16_t value = static_cast<size_t>(site) < codon_position.size()
                              ? codon_position[static_cast<size_t>(site)]
                              : int16_t{0};
    by_value[value >= 1 && value <= 3 ? static_cast<size_t>(value) : 0].push_back(site);
  }
  std::vector<std::string> lines;
  if (!by_value[0].empty()) lines.push_back("      N: " + NumberRuns(by_value[0]));
  for (size_t p = 1; p <= 3; ++p) {
    if (!by_value[p].empty())
      lines.push_back("      " + std::to_string(p) + ": " + SteppedRuns(by_value[p]));
  }
  for (size_t i = 0; i < lines.size(); ++i) lines[i] += i + 1 == lines.size() ? ";" : ",";
  return lines;
}

bool HasNexusCodons(const ActiveData& ad) { return ad.Format.CodingAssigned >= 1; }

void WriteNexusCodonsBlock(const ActiveData& ad, WriterLines& out, const KeptStatements& kept) {
  const int16_t code =
      ad.Format.GeneticCodeIndex >= 1 && ad.Format.GeneticCodeIndex <= kGeneticCodeCount
          ? ad.Format.GeneticCodeIndex
          : int16_t{1};
  out.Line("BEGIN CODONS; ");
  WriteKeptStatements(kept.Head, out);
  out.Line("   CODONPOSSET * UNTITLED = ");
  for (const std::string& line : CodingMapLines(ad.CodonPosition, ad.NumSites)) out.Line(line);
  out.Line("   CODESET * UNTITLED = " + GeneticCodeNexusName(code) + ": all;");
  WriteKeptStatements(kept.Body, out);
  out.Line("END;");
}

}  // namespace ovelt

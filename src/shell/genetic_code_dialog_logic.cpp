#include "shell/genetic_code_dialog_logic.h"

namespace ovelt {

const std::vector<std::string>& CodonBaseLabels() {
  static const std::vector<std::string> kLabels{"U", "C", "A", "G"};
  return kLabels;
}

std::string GeneticCodeFrameTitle(const ActiveData& ad) {
  return "Genetic Code for: " + ad.FileName;
}

std::vector<std::string> GeneticCodeChoices() {
  std::vector<std::string> names;
  for (int16_t index = 1; index <= kGeneticCodeCount; ++index)
    names.push_back(GeneticCodeText(index));
  return names;
}

std::string CodonGridCell(const GeneticCodeTable& table, int first, int second, int third) {
  for (const int rank : {first, second, third})
    if (rank < 1 || rank > 4) return "";
  const std::vector<std::string>& bases = CodonBaseLabels();
  const std::string codon = bases[static_cast<size_t>(first - 1)] +
                            bases[static_cast<size_t>(second - 1)] +
                            bases[static_cast<size_t>(third - 1)];
  const int index = (first - 1) * 16 + (second - 1) * 4 + third;
  return codon + "  " + AminoAcidThreeLetter(table.Translate(index));
}

}  // namespace ovelt

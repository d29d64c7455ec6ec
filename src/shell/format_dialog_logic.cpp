#include "shell/format_dialog_logic.h"

#include "core/genetic_code.h"
#include "core/genome_format.h"

namespace ovelt {

GenomeFormatChoice CurrentGenomeFormat(const ActiveData& ad) {
  return {ad.Format.NucleotideType, ad.Format.GenomeState, ad.Format.ChromosomalLocation};
}

std::optional<std::string> DiploidQuestion(const ActiveData& ad,
                                           const GenomeFormatChoice& choice) {
  if (!NeedsDiploidConfirmation(choice.ChromosomalLocation, choice.GenomeState))
    return std::nullopt;
  return kDiploidQuestion + "\nInput data file: " + ad.FilePath;
}

bool ApplyGenomeFormat(ActiveData& ad, const GenomeFormatChoice& choice, bool& redraw) {
  redraw = false;
  if (choice.NucleotideType < 0 || choice.NucleotideType > 1 || choice.GenomeState < 0 ||
      choice.GenomeState > 1 || choice.ChromosomalLocation < 0 ||
      choice.ChromosomalLocation >= kChromosomalLocationCount)
    return false;
  redraw = ad.Format.NucleotideType != choice.NucleotideType;
  ad.Format.NucleotideType = choice.NucleotideType;
  ad.Format.GenomeState = choice.GenomeState;
  ad.Format.ChromosomalLocation = choice.ChromosomalLocation;
  return true;
}

}  // namespace ovelt

#include "core/genetic_code_choice.h"

#include "core/coding_flag.h"

namespace ovelt {

std::string DefaultPrefTableName(int16_t genetic_code) {
  return genetic_code == 1 ? "Drosophila_melanogaster" : "None";
}

bool ChangeGeneticCode(ActiveData& ad, int16_t index) {
  if (index < 1 || index > kGeneticCodeCount) return false;
  if (index == ad.Format.GeneticCodeIndex) return false;
  ad.Format.GeneticCodeIndex = index;
  ad.PrefTableName = DefaultPrefTableName(index);
  RebuildCodingTables(ad);
  return true;
}

}  // namespace ovelt

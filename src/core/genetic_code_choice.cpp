#include "core/genetic_code_choice.h"

#include "core/coding_flag.h"
#include "core/pref_tables.h"

namespace ovelt {

std::string DefaultPrefTableName(int16_t genetic_code) {
  static const GCPrefUnPref kBuiltIn;
  return kBuiltIn.defaultTable(genetic_code);
}

bool ChangeGeneticCode(ActiveData& ad, int16_t index) {
  if (index < 1 || index > kGeneticCodeCount) return false;
  if (index == ad.Format.GeneticCodeIndex) return false;
  ad.Format.GeneticCodeIndex = index;
  ad.PrefTableName = ad.PrefTables.defaultTable(index);
  RebuildCodingTables(ad);
  return true;
}

}  // namespace ovelt

#include "formats/nexus_extras.h"

namespace ovelt {

void ApplyNexusExtras(const NexusExtras& extras, ActiveData& ad) {
  ad.Format = extras.Format;
  ad.CodonPosition = extras.CodonPosition;
  ad.CodonPosition.resize(static_cast<size_t>(ad.NumSites) + 1, 0);
  ad.CodonPosition[0] = 0;
  ad.SequenceSets.assign(1, PoblacionSecuencias{});
  for (const PoblacionSecuencias& set : extras.SequenceSets) ad.SequenceSets.push_back(set);
  ad.Domains = extras.Domains;
  for (const CodPrefUnPref& table : extras.PrefTables) ad.PrefTables.creatModifyGC(table);
  const int16_t code = extras.Format.GeneticCodeIndex >= 1 ? extras.Format.GeneticCodeIndex : 1;
  ad.PrefTableName =
      extras.PrefTableName.empty() ? ad.PrefTables.defaultTable(code) : extras.PrefTableName;
}

}  // namespace ovelt

#include "formats/codon_usage_writer.h"

#include "core/text_case.h"
#include "formats/ovp_writer.h"

namespace ovelt {
namespace {

int16_t DataGeneticCode(const ActiveData& ad) {
  const int16_t gc = ad.Format.GeneticCodeIndex;
  return gc >= 1 && gc <= kGeneticCodeCount ? gc : int16_t{1};
}

}  // namespace

std::vector<std::string> CodonUsageBlockOf(const std::vector<const CodPrefUnPref*>& tables) {
  if (tables.empty()) return {};
  std::vector<std::string> lines = {"BEGIN CODONUSAGE;"};
  for (const CodPrefUnPref* table : tables) {
    for (std::string& line : PrefTableLines(*table)) lines.push_back(std::move(line));
  }
  lines.emplace_back("END;");
  return lines;
}

bool PrefTableAssigned(const ActiveData& ad) {
  const std::string name = ToUpperAscii(TrimBlanks(ad.PrefTableName));
  return !name.empty() && name != "NONE" && name != "UNKNOWN" &&
         ad.PrefTables.CodPrefUnPref(ad.PrefTableName) != nullptr;
}

bool AssignedTableCodeDiffers(const ActiveData& ad) {
  if (!PrefTableAssigned(ad)) return false;
  return ad.PrefTables.CodPrefUnPref(ad.PrefTableName)->GC() != DataGeneticCode(ad);
}

std::vector<const CodPrefUnPref*> TablesForNexusFile(const ActiveData& ad, bool drop_assigned) {
  const CodPrefUnPref* assigned =
      PrefTableAssigned(ad) ? ad.PrefTables.CodPrefUnPref(ad.PrefTableName) : nullptr;
  if (drop_assigned || (assigned != nullptr && assigned->GC() != DataGeneticCode(ad)))
    assigned = nullptr;
  std::vector<const CodPrefUnPref*> tables;
  for (const CodPrefUnPref& table : ad.PrefTables.tables()) {
    const bool users =
        !ad.PrefTables.reservedTable(table.name()) && table.GC() == DataGeneticCode(ad);
    if ((users || &table == assigned) && table.HasInformation()) tables.push_back(&table);
  }
  return tables;
}

}  // namespace ovelt

#include "core/pref_tables.h"

#include "core/genetic_code.h"
#include "core/pref_builtin.h"
#include "core/text_case.h"

namespace ovelt {

GCPrefUnPref::GCPrefUnPref() : tables_(BuiltInPrefTables()) {}

int GCPrefUnPref::Find(const std::string& name) const {
  const std::string wanted = ToUpperAscii(name);
  for (size_t i = 0; i < tables_.size(); ++i) {
    if (ToUpperAscii(tables_[i].name()) == wanted) return static_cast<int>(i);
  }
  return -1;
}

bool GCPrefUnPref::reservedTable(const std::string& name) const {
  const std::string wanted = ToUpperAscii(name);
  for (const ::ovelt::CodPrefUnPref& table : BuiltInPrefTables()) {
    if (ToUpperAscii(table.name()) == wanted) return true;
  }
  return false;
}

const CodPrefUnPref* GCPrefUnPref::CodPrefUnPref(const std::string& name) const {
  const int i = Find(name);
  return i < 0 ? nullptr : &tables_[static_cast<size_t>(i)];
}

std::string GCPrefUnPref::defaultTable(int16_t gc) const {
  // The built-ins are looked up by their own list, so a file's table that replaced one of
  // them does not change which name is the default.
  for (const ::ovelt::CodPrefUnPref& table : BuiltInPrefTables()) {
    if (table.GC() == gc) return table.name();
  }
  return kNoPrefTable;
}

std::string GCPrefUnPref::firstTable(int16_t gc) const {
  for (const ::ovelt::CodPrefUnPref& table : tables_) {
    if (table.GC() == gc) return table.name();
  }
  return kNoPrefTable;
}

std::vector<std::string> GCPrefUnPref::GiveMeTables(int16_t gc) const {
  std::vector<std::string> names;
  for (const ::ovelt::CodPrefUnPref& table : tables_) {
    if (table.GC() == gc) names.push_back(table.name());
  }
  return names;
}

const CodPrefUnPref* GCPrefUnPref::firstObject() {
  cursor_ = 0;
  return nextObject();
}

const CodPrefUnPref* GCPrefUnPref::nextObject() {
  if (cursor_ >= tables_.size()) return nullptr;
  return &tables_[cursor_++];
}

int GCPrefUnPref::numGC(int16_t gc) const {
  return static_cast<int>(GiveMeTables(gc).size());
}

void GCPrefUnPref::creatModifyGC(const ::ovelt::CodPrefUnPref& table) {
  if (table.GC() < 1 || table.GC() > kGeneticCodeCount)
    throw PrefTableError(5, "GCPrefUnPref:creatModifyGC", "Invalid procedure call or argument");
  const int i = Find(table.name());
  if (i >= 0) {
    tables_[static_cast<size_t>(i)] = table;
  } else {
    tables_.push_back(table);
  }
}

bool GCPrefUnPref::changeFile(const std::string& name, int16_t flag) {
  const int i = Find(name);
  if (i < 0) return false;
  tables_[static_cast<size_t>(i)].sFile(flag);
  return true;
}

std::string NoPredefinedTableText(int16_t gc) {
  return "There is no any predefined Preferred/Unpreferred Codons Table associated with the " +
         GeneticCodeText(gc) + " Genetic Code!";
}

}  // namespace ovelt

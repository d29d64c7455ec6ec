#pragma once
// The collection of preferred/unpreferred codon tables: the built-in tables ("None" and eight
// tables of organisms under the nuclear universal code), then the tables read from files or
// edited by the user, in order of arrival. Names are compared without regard to case.

#include <cstdint>
#include <string>
#include <vector>

#include "core/pref_table.h"

namespace ovelt {

// The name of the table that stands for no table.
inline const std::string kNoPrefTable = "None";

class GCPrefUnPref {
 public:
  // Starts with the built-in tables.
  GCPrefUnPref();

  // True when `name` is the name of a built-in table.
  [[nodiscard]] bool reservedTable(const std::string& name) const;
  // The table of that name, or nullptr.
  [[nodiscard]] const ::ovelt::CodPrefUnPref* CodPrefUnPref(const std::string& name) const;
  // The first built-in table of genetic code `gc`, or "None" when the code has none.
  [[nodiscard]] std::string defaultTable(int16_t gc) const;
  // The first table of genetic code `gc`, built in or not, or "None".
  [[nodiscard]] std::string firstTable(int16_t gc) const;
  // Names of the tables of genetic code `gc`, in collection order.
  [[nodiscard]] std::vector<std::string> GiveMeTables(int16_t gc) const;
  // Walk over all tables: the first, then each next; nullptr after the last.
  [[nodiscard]] const ::ovelt::CodPrefUnPref* firstObject();
  [[nodiscard]] const ::ovelt::CodPrefUnPref* nextObject();
  // Number of tables of genetic code `gc`.
  [[nodiscard]] int numGC(int16_t gc) const;
  // Stores `table`: a table of the same name is replaced in its place, otherwise the table is
  // added at the end. A genetic code outside 1..10 throws PrefTableError (5).
  void creatModifyGC(const ::ovelt::CodPrefUnPref& table);
  // Sets the file flag of the table of that name; false when there is none.
  bool changeFile(const std::string& name, int16_t flag);

  [[nodiscard]] const std::vector<::ovelt::CodPrefUnPref>& tables() const { return tables_; }

 private:
  [[nodiscard]] int Find(const std::string& name) const;

  std::vector<::ovelt::CodPrefUnPref> tables_;
  size_t cursor_ = 0;
};

// "There is no any predefined Preferred/Unpreferred Codons Table associated with the Nuclear
// Ciliate Genetic Code!" for a code without a built-in table.
[[nodiscard]] std::string NoPredefinedTableText(int16_t gc);

}  // namespace ovelt

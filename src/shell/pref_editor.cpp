#include "shell/pref_editor.h"

#include <algorithm>
#include <array>

#include "core/genetic_code.h"
#include "core/text_case.h"

namespace ovelt {

namespace {

// Names the workbench itself uses for tables: the organisms of the built-in tables and the
// name of an unknown table.
const std::array<std::string, 9> kReservedNames = {
    "Drosophila_melanogaster", "Drosophila_pseudoobscura", "Drosophila_simulans",
    "Arabidopsis_thaliana",    "Caenorhabditis_elegans",   "Saccharomyces_cerevisiae",
    "Escherichia_coli",        "Bacillus_subtilis",        "UnKnown"};

// Table names go into NEXUS files, where these words begin commands.
const std::array<std::string, 13> kNexusWords = {
    "charset",      "standard",      "vector",        "stateset", "changeset",
    "taxset",       "treeset",       "charpartition", "tokens",   "taxpartition",
    "treepartition", "begin",        "end"};

bool SameName(const std::string& a, const std::string& b) {
  return ToUpperAscii(a) == ToUpperAscii(b);
}

}  // namespace

std::optional<std::string> ValidatePrefTableName(const std::string& name) {
  if (TrimBlanks(name).empty()) return std::string();
  for (const std::string& reserved : kReservedNames)
    if (SameName(name, reserved)) return kReservedTableName;
  for (const std::string& word : kNexusWords)
    if (SameName(name, word)) return kNexusWordTableName;
  return std::nullopt;
}

std::string NoInformationText(const std::string& name) {
  return "There is no information in " + name + " table. Ovelt did not save it";
}

bool CodonEditable(const CodPrefUnPref& table, int index) {
  const int16_t status = table.prefUnPref(index);
  return status != kSingleCodon && status != kStopStatus;
}

std::string CodonOfIndex(int index) {
  static constexpr char kBases[] = {'T', 'C', 'A', 'G'};
  const int i = index - 1;
  return {kBases[(i / 16) % 4], kBases[(i / 4) % 4], kBases[i % 4]};
}

std::string CodonCellText(const CodPrefUnPref& table, int index) {
  const char amino = BuildGeneticCode(table.GC()).Translate(index);
  return CodonOfIndex(index) + "  " + std::string(1, amino) + table.prefUnPref_s(index);
}

PrefTableEditor::PrefTableEditor(const GCPrefUnPref& store, int16_t gc,
                                 const std::string& assigned)
    : store_(store), gc_(gc >= 1 && gc <= kGeneticCodeCount ? gc : int16_t{1}) {
  const std::vector<std::string> names = TableNames();
  const auto listed = std::find_if(names.begin(), names.end(),
                                   [&](const std::string& n) { return SameName(n, assigned); });
  selected_ = listed != names.end() ? *listed : store_.firstTable(gc_);
}

bool PrefTableEditor::SelectGeneticCode(int16_t gc) {
  if (editing_ || gc < 1 || gc > kGeneticCodeCount) return false;
  gc_ = gc;
  selected_ = store_.firstTable(gc_);
  return true;
}

std::optional<std::string> PrefTableEditor::NoBuiltInNotice() const {
  if (store_.defaultTable(gc_) != kNoPrefTable) return std::nullopt;
  return NoPredefinedTableText(gc_);
}

std::vector<std::string> PrefTableEditor::TableNames() const {
  std::vector<std::string> names = {kNoPrefTable};
  for (const std::string& name : store_.GiveMeTables(gc_)) names.push_back(name);
  return names;
}

bool PrefTableEditor::SelectTable(const std::string& name) {
  if (editing_) return false;
  for (const std::string& listed : TableNames()) {
    if (SameName(listed, name)) {
      selected_ = listed;
      return true;
    }
  }
  return false;
}

void PrefTableEditor::Reselect() {
  const std::vector<std::string> names = TableNames();
  selected_ = names.back();
}

const CodPrefUnPref& PrefTableEditor::Shown() const {
  if (editing_) return edited_;
  return *store_.CodPrefUnPref(selected_);
}

std::string PrefTableEditor::TableHeading() const {
  return "Pref-UnPref Table for: " + Shown().name();
}

std::string PrefTableEditor::CodeHeading() const {
  return "Genetic Code used: " + GeneticCodeText(gc_);
}

const std::string& PrefTableEditor::EditButtonCaption() const {
  return editing_ ? kCloseEditionCaption : kEditNewTableCaption;
}

std::vector<std::string> PrefTableEditor::Legend() const {
  std::vector<std::string> lines = kPreferenceLegend;
  if (editing_) lines.push_back(kClickCodonLegend);
  return lines;
}

std::optional<std::string> PrefTableEditor::BeginNewTable(const std::string& name) {
  if (editing_) return std::string();
  if (auto refusal = ValidatePrefTableName(name)) return refusal;
  edited_ = CodPrefUnPref();
  edited_.creat(gc_, kUnpreferred);
  edited_.sName(TrimBlanks(name));
  edited_.sFile(1);
  editing_ = true;
  return std::nullopt;
}

bool PrefTableEditor::CanEditSelected() const {
  return !editing_ && !store_.reservedTable(selected_);
}

bool PrefTableEditor::BeginEditSelected() {
  if (!CanEditSelected()) return false;
  edited_ = *store_.CodPrefUnPref(selected_);
  editing_ = true;
  return true;
}

bool PrefTableEditor::SetCodon(int index, CodonChoice choice) {
  if (!editing_ || index < 1 || index > 64 || !CodonEditable(edited_, index)) return false;
  switch (choice) {
    case CodonChoice::kPreferred:
      edited_.sPrefUnPref(index, kPreferred1);
      return true;
    case CodonChoice::kUnknown:
      edited_.sPrefUnPref(index, kUnknownPreference);
      return true;
    case CodonChoice::kUnpreferred:
      edited_.sPrefUnPref(index, kUnpreferred);
      return true;
    case CodonChoice::kCancel:
      break;
  }
  return false;
}

std::optional<std::string> PrefTableEditor::CloseEdition() {
  if (!editing_) return std::nullopt;
  editing_ = false;
  if (!edited_.HasInformation()) return NoInformationText(edited_.name());
  edited_.sFile(1);
  store_.creatModifyGC(edited_);
  gc_ = edited_.GC();
  selected_ = edited_.name();
  return std::nullopt;
}

bool PrefTableEditor::CanDeleteSelected() const {
  return !editing_ && !store_.reservedTable(selected_);
}

bool PrefTableEditor::DeleteSelected() {
  if (!CanDeleteSelected()) return false;
  // The store has no removal: it is built again without the table, in the same order (the
  // built-ins first, each replaced in place by a table of its name, then the others).
  GCPrefUnPref rebuilt;
  for (const CodPrefUnPref& table : store_.tables()) {
    if (SameName(table.name(), selected_) || table.GC() < 1) continue;
    rebuilt.creatModifyGC(table);
  }
  store_ = rebuilt;
  selected_ = store_.firstTable(gc_);
  return true;
}

std::optional<std::string> PrefTableEditor::SaveRefusal() const {
  if (Shown().HasInformation()) return std::nullopt;
  return NoInformationText(Shown().name());
}

}  // namespace ovelt

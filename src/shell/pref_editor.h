#pragma once
// The editor of preferred/unpreferred codon tables (TBPrefUnPref) without its window: which
// genetic code and table are shown, the edition mode of a new or a user table, the change of
// a codon's status, the refusals, and the table chosen for the data. It works on a copy of the
// store; the caller writes the store and the chosen name back when the dialog is confirmed.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/pref_tables.h"

namespace ovelt {

inline const std::string kReservedTableName =
    "Invalid Name! This name is already used by Ovelt. Please enter another name";
inline const std::string kNexusWordTableName = "Invalid Name, please enter another name";
inline const std::string kEditNewTableCaption = "Edit a New Table";
inline const std::string kCloseEditionCaption = "Close Edition Mode";
inline const std::string kClickCodonLegend = "Click a codon, to change its Preference Status:";
inline const std::vector<std::string> kPreferenceLegend = {
    "     Preference Status:", "         P, Preferred", "         ?, Unknown",
    "    none, Unpreferred"};

// The checks of the name dialog (Dialog): nullopt when `name` may name a table; otherwise the
// message, "" for an empty name (refused without a box). Built-in organism names and "UnKnown"
// are reserved; NEXUS command words are refused because the name is written into NEXUS files.
// Both are compared without regard to case.
[[nodiscard]] std::optional<std::string> ValidatePrefTableName(const std::string& name);

// "There is no information in <name> table. Ovelt did not save it"
[[nodiscard]] std::string NoInformationText(const std::string& name);

// The four answers of the codon dialog (Dialog1).
enum class CodonChoice { kPreferred, kUnknown, kUnpreferred, kCancel };

// Stop codons and the codons of single-codon amino acids keep their status.
[[nodiscard]] bool CodonEditable(const CodPrefUnPref& table, int index);

// The text of one editor cell: codon, one-letter amino acid of the table's code and the status
// text, e.g. "TTC  F P" (organelle and nuclear codes alike).
[[nodiscard]] std::string CodonCellText(const CodPrefUnPref& table, int index);

// The codon (T, C, A, G order) of index 1..64, e.g. 2 -> "TTC".
[[nodiscard]] std::string CodonOfIndex(int index);

class PrefTableEditor {
 public:
  // `gc` is the data's genetic code; `assigned` the table assigned to the data.
  PrefTableEditor(const GCPrefUnPref& store, int16_t gc, const std::string& assigned);

  [[nodiscard]] const GCPrefUnPref& Store() const { return store_; }
  // For the table-file reader, which stores what it reads; call Reselect() afterwards.
  [[nodiscard]] GCPrefUnPref& MutableStore() { return store_; }

  // Combo1: the genetic code whose tables are listed. Refused (false) in edition mode.
  [[nodiscard]] int16_t GeneticCode() const { return gc_; }
  bool SelectGeneticCode(int16_t gc);
  // The notice shown when the code has no built-in table (NoPredefinedTableText), else nullopt.
  [[nodiscard]] std::optional<std::string> NoBuiltInNotice() const;
  // Combo2: "None" and the tables of the code, in store order.
  [[nodiscard]] std::vector<std::string> TableNames() const;
  [[nodiscard]] const std::string& SelectedName() const { return selected_; }
  // False for a name that is not listed or in edition mode.
  bool SelectTable(const std::string& name);
  // After tables were read into the store: the last table of the code is shown.
  void Reselect();

  // The table shown in the grid: the edited one in edition mode, else the selected one.
  [[nodiscard]] const CodPrefUnPref& Shown() const;
  [[nodiscard]] bool Editing() const { return editing_; }
  [[nodiscard]] std::string TableHeading() const;  // "Pref-UnPref Table for: " name
  [[nodiscard]] std::string CodeHeading() const;   // "Genetic Code used: " code name
  [[nodiscard]] const std::string& EditButtonCaption() const;
  [[nodiscard]] std::vector<std::string> Legend() const;

  // "Edit a New Table" with the name given in Dialog: every degenerate codon starts as
  // unpreferred. The refusal's message ("" without a box) when the name is not accepted.
  [[nodiscard]] std::optional<std::string> BeginNewTable(const std::string& name);
  // Edition of the selected table; only tables that are not built in. False when refused.
  bool BeginEditSelected();
  [[nodiscard]] bool CanEditSelected() const;
  // Dialog1's answer for codon `index`; false when nothing changed (not editing, a codon that
  // keeps its status, or Cancel).
  bool SetCodon(int index, CodonChoice choice);
  // "Close Edition Mode": a table with information is stored (replacing one of the same name)
  // and selected; else it is dropped and the message says so.
  [[nodiscard]] std::optional<std::string> CloseEdition();

  // A table of the user (not built in) may be deleted; the data's choice falls back to the
  // default table of its code when it was that one.
  [[nodiscard]] bool CanDeleteSelected() const;
  bool DeleteSelected();

  // Saving the shown table to a table file: the refusal when it holds no information.
  [[nodiscard]] std::optional<std::string> SaveRefusal() const;

  // The table that OK assigns to the data.
  [[nodiscard]] const std::string& Assigned() const { return selected_; }

 private:
  GCPrefUnPref store_;
  int16_t gc_;
  std::string selected_;
  bool editing_ = false;
  CodPrefUnPref edited_;
};

}  // namespace ovelt

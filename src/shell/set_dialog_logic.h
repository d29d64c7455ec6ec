#pragma once
// What the two set dialogs hold while they are open. "Define Sequence Sets" edits the members
// of one set at a time through the "Included List"; "Include/Exclude Populations" flips the
// active flags of whole sets. Both work on a `forms_class` copy of the sets and write it into
// `SequenceSets` in one step when the user leaves with OK; any other way out drops the copy.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/forms_class.h"

namespace ovelt {

inline const std::string kModifySetButton = "Modify";

// A message box the dialog should show: its text and title ("Ovelt" unless said otherwise).
struct SetDialogMessage {
  std::string text;
  std::string title = "Ovelt";
};

class DefineSetsSession {
 public:
  explicit DefineSetsSession(const ActiveData& ad);

  [[nodiscard]] const forms_class& Work() const { return work_; }
  // Entry of the set combo in use: 0 is "New Sequence Set", k is set k.
  [[nodiscard]] int32_t Current() const { return current_; }
  // File sequence numbers of the "Included List", in order of insertion.
  [[nodiscard]] const std::vector<int32_t>& IncludedList() const { return included_; }
  // File sequences that are not in the "Included List", in file order.
  [[nodiscard]] std::vector<int32_t> ExcludedList() const;
  // True when the "Included List" differs from the members of the chosen set.
  [[nodiscard]] bool Dirty() const;
  // Caption of the save button: "Update the Sequence Set" while a chosen set has unsaved
  // changes, "Modify" otherwise.
  [[nodiscard]] std::string SaveButtonCaption() const;

  // Moves file sequences to the "Included List" (appended in the order given; numbers outside
  // 1..TotalSeqs and members already listed are skipped), or out of it.
  void Include(const std::vector<int32_t>& seqs);
  void Exclude(const std::vector<int32_t>& seqs);

  // Chooses combo entry `index`: a set loads its members, "New Sequence Set" an empty list.
  // The caller asks `SaveQuestion` first. False for an index outside the combo.
  bool Choose(int32_t index);
  // The question to ask before the chosen set is left with unsaved changes; nullopt when there
  // is nothing to save.
  [[nodiscard]] std::optional<std::string> SaveQuestion() const;
  // "Modify": the chosen set takes the "Included List". The message tells the outcome: the name
  // and " has been modified succesfully" (title "Define Populations"), or the transfer error.
  SetDialogMessage SaveCurrent();

  // "Add new Sequence Set" with the typed name: nullopt when the set was added (it becomes the
  // chosen entry), "" for an empty name (nothing happens, nothing to show), else the refusal.
  std::optional<std::string> AddNew(const std::string& name);
  // Renames set `index` after the same check as a new name (its own name does not count as in
  // use). nullopt when renamed.
  std::optional<std::string> Rename(int32_t index, const std::string& name);
  // The question asked before set `index` is removed ("" for a bad index).
  [[nodiscard]] std::string RemoveQuestion(int32_t index) const;
  // Removes set `index`; the sets after it move up one. False for a bad index.
  bool Remove(int32_t index);

  // OK: the working copy replaces `SequenceSets`.
  void Apply(ActiveData& ad) const;

 private:
  int32_t total_seqs_;
  forms_class work_;
  int32_t current_ = 0;
  std::vector<int32_t> included_;
};

class ActivePopulationsSession {
 public:
  explicit ActivePopulationsSession(const ActiveData& ad);

  [[nodiscard]] const forms_class& Work() const { return work_; }
  // Indices of the sets listed as included (active) and as excluded.
  [[nodiscard]] std::vector<int32_t> IncludedPopulations() const;
  [[nodiscard]] std::vector<int32_t> ExcludedPopulations() const;
  // Moves sets between the lists; bad indices are skipped.
  void Include(const std::vector<int32_t>& sets);
  void Exclude(const std::vector<int32_t>& sets);

  // OK: nullopt when the flags were written into `SequenceSets`; else the refusal (during the
  // gene flow command, fewer than two active sets with included sequences) and nothing changed.
  std::optional<std::string> Confirm(ActiveData& ad);

 private:
  forms_class work_;
  std::vector<bool> active_;  // 1-based, one flag per set
};

}  // namespace ovelt

#pragma once
// The working copy behind the two set dialogs (Define Sequence Sets, Include/Exclude
// Populations). The dialogs edit this copy only; `setValues` writes it into the store when the
// user leaves with OK, and leaving any other way simply drops the copy.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

inline const std::string kNewSequenceSetEntry = "New Sequence Set";
inline const std::string kSetsDialogTitle = "Define Populations";
inline const std::string kSetTransferError = "Could not transfer the information";
inline const std::string kSetsNexusReminder =
    "If you want to store this information, save (or export) the active data file as a NEXUS "
    "file format";
inline const std::string kExcludedMark = "   (E)";
inline const std::string kUpdateSetButton = "Update the Sequence Set";

// One set of the working copy.
struct SetRecord {
  std::string name;
  int16_t active = 1;
  std::vector<int32_t> members;  // file sequence numbers, in order of insertion
};

class forms_class {
 public:
  // Loads the working copy from a store (1-based, index 0 unused).
  void initValues(const std::vector<PoblacionSecuencias>& sets);
  // Writes the working copy into a store, replacing what it held (the OK of a dialog).
  void setValues(std::vector<PoblacionSecuencias>& sets) const;

  [[nodiscard]] int32_t count() const { return static_cast<int32_t>(records_.size()) - 1; }
  // Set `index` (1..count); throws std::out_of_range otherwise.
  [[nodiscard]] const SetRecord& record(int32_t index) const;

  // Members of set `index`, for the "Included List".
  [[nodiscard]] std::vector<int32_t> copyToList(int32_t index) const;
  // Indices of the sets whose active flag is `active`, for the two lists of the populations
  // dialog (included populations on the right, excluded on the left).
  [[nodiscard]] std::vector<int32_t> copyToListPob(bool active) const;
  // "New Sequence Set" followed by the set names, as the combo shows them.
  [[nodiscard]] std::vector<std::string> copyToComboBox() const;

  // "Modify": set `index` takes the members of the "Included List". False for a bad index.
  bool copyFromList(int32_t index, const std::vector<int32_t>& members);
  // The populations dialog: the sets listed as included (1-based flags, one per set) become
  // active, the others inactive. False when the count of flags is not that of the sets.
  bool activeFromList(const std::vector<bool>& active);

  // "Add new Sequence Set": a new active set of `members` after the name check. nullopt on
  // success, else the check's message ("" for an empty name: nothing happens).
  [[nodiscard]] std::optional<std::string> newPoblation(const std::string& name,
                                                        const std::vector<int32_t>& members);

  // Index of the set called `name` (exact), 0 when there is none.
  [[nodiscard]] int32_t Lookup_Poblation(const std::string& name) const;

  // True when `members` differ from those of set `index`: choosing another set then asks
  // whether to save the change.
  [[nodiscard]] bool IsModified(int32_t index, const std::vector<int32_t>& members) const;

 private:
  std::vector<SetRecord> records_{SetRecord{}};  // index 0 unused
};

// Entry of file sequence `seq` in the lists of the sets dialog: its name, with "   (E)" behind
// it when the sequence is excluded.
[[nodiscard]] std::string SequenceListEntry(const ActiveData& ad, int32_t seq);

// The message after saving a changed set: the name and " has been modified succesfully".
[[nodiscard]] std::string SetModifiedMessage(const std::string& name);

// "Update " and the name: the question of the save button while set `name` has unsaved changes.
[[nodiscard]] std::string UpdateSetCaption(const std::string& name);

}  // namespace ovelt

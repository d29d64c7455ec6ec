#include "core/forms_class.h"

#include <stdexcept>
#include <utility>

#include "core/set_name.h"

namespace ovelt {

void forms_class::initValues(const std::vector<PoblacionSecuencias>& sets) {
  records_.assign(1, SetRecord{});
  for (size_t i = 1; i < sets.size(); ++i) {
    SetRecord record{sets[i].nombre(), sets[i].active(), {}};
    for (const double member : sets[i].members()) {
      record.members.push_back(static_cast<int32_t>(member));
    }
    records_.push_back(std::move(record));
  }
}

void forms_class::setValues(std::vector<PoblacionSecuencias>& sets) const {
  std::vector<PoblacionSecuencias> written{PoblacionSecuencias{}};
  for (size_t i = 1; i < records_.size(); ++i) {
    PoblacionSecuencias set;
    set.nombrePop(records_[i].name);
    set.activePop(records_[i].active);
    int32_t index = 0;
    for (const int32_t member : records_[i].members) {
      set.secuenciaPop(++index, static_cast<double>(member));
    }
    written.push_back(std::move(set));
  }
  sets = std::move(written);
}

const SetRecord& forms_class::record(int32_t index) const {
  if (index < 1 || index > count()) throw std::out_of_range(kSetTransferError);
  return records_[static_cast<size_t>(index)];
}

std::vector<int32_t> forms_class::copyToList(int32_t index) const {
  if (index < 1 || index > count()) return {};
  return records_[static_cast<size_t>(index)].members;
}

std::vector<int32_t> forms_class::copyToListPob(bool active) const {
  std::vector<int32_t> indices;
  for (int32_t i = 1; i <= count(); ++i) {
    if ((records_[static_cast<size_t>(i)].active != 0) == active) indices.push_back(i);
  }
  return indices;
}

std::vector<std::string> forms_class::copyToComboBox() const {
  std::vector<std::string> entries{kNewSequenceSetEntry};
  for (size_t i = 1; i < records_.size(); ++i) entries.push_back(records_[i].name);
  return entries;
}

bool forms_class::copyFromList(int32_t index, const std::vector<int32_t>& members) {
  if (index < 1 || index > count()) return false;
  records_[static_cast<size_t>(index)].members = members;
  return true;
}

bool forms_class::activeFromList(const std::vector<bool>& active) {
  if (static_cast<int32_t>(active.size()) - 1 != count()) return false;
  for (int32_t i = 1; i <= count(); ++i) {
    records_[static_cast<size_t>(i)].active = active[static_cast<size_t>(i)] ? 1 : 0;
  }
  return true;
}

std::optional<std::string> forms_class::newPoblation(const std::string& name,
                                                     const std::vector<int32_t>& members) {
  std::vector<std::string> names;
  for (size_t i = 1; i < records_.size(); ++i) names.push_back(records_[i].name);
  if (auto refusal = ValidateSetName(name, names)) return refusal;
  records_.push_back(SetRecord{name, 1, members});
  return std::nullopt;
}

int32_t forms_class::Lookup_Poblation(const std::string& name) const {
  for (int32_t i = 1; i <= count(); ++i) {
    if (records_[static_cast<size_t>(i)].name == name) return i;
  }
  return 0;
}

bool forms_class::IsModified(int32_t index, const std::vector<int32_t>& members) const {
  if (index < 1 || index > count()) return false;
  return records_[static_cast<size_t>(index)].members != members;
}

std::string SequenceListEntry(const ActiveData& ad, int32_t seq) {
  if (seq < 1 || seq >= static_cast<int32_t>(ad.RawNames.size())) return "";
  std::string entry = ad.RawNames[static_cast<size_t>(seq)];
  const bool included =
      seq < static_cast<int32_t>(ad.SeqIncluded.size()) && ad.SeqIncluded[static_cast<size_t>(seq)];
  if (!included) entry += kExcludedMark;
  return entry;
}

std::string SetModifiedMessage(const std::string& name) {
  return name + " has been modified succesfully";
}

std::string UpdateSetCaption(const std::string& name) { return "Update " + name; }

}  // namespace ovelt
